#include "formats/upper/checking/finding.h"

#include "platform/text.h"

namespace awizo {

std::string quoted(std::string_view value) {
  constexpr std::size_t mostShown = 60;
  const std::string_view start = firstCharacters(value, mostShown);
  const std::string_view rest = start.size() < value.size() ? "…" : "";
  return std::string("«").append(withoutControlCharacters(start)).append(rest).append("»");
}

}  // namespace awizo
