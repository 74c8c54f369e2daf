#include "hosts/headless/lines.h"

#include <cstdio>

#include "platform/text.h"

namespace awizo::headless {

std::optional<std::string> Lines::read() {
  std::optional<std::string> line = next();
  if (!line) return line;
  if (line->size() > longestLine) line->clear();
  if (line->ends_with('\r')) line->pop_back();
  return line;
}

void complain(std::string_view words) {
  std::fputs(joined({"awizo-headless: ", words, "\n"}).c_str(), stderr);
}

}  // namespace awizo::headless
