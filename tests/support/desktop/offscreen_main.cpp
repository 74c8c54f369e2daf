#include "support/desktop/offscreen.h"

int main(int count, char** arguments) {
  return awizo::test::runOffscreen(count, arguments, QSize(800, 800));
}
