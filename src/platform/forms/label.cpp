#include "platform/forms/label.h"

namespace awizo {

void Label::setCaption(std::string_view caption) {
  if (caption_ == caption) return;
  caption_ = caption;
  changed(Aspect::content);
}

}  // namespace awizo
