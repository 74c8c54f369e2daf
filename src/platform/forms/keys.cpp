#include "platform/forms/keys.h"

#include <string_view>

namespace awizo::keys {

std::int16_t characterOf(std::int16_t code, bool shifted) {
  constexpr std::string_view shiftedDigits = ")!@#$%^&*(";
  if (code == backspace || code == enter || code == escape || code == blank) return code;
  if (code >= '0' && code <= '9') {
    return shifted ? shiftedDigits[static_cast<std::size_t>(code - '0')] : code;
  }
  if (code >= 'A' && code <= 'Z') return shifted ? code : static_cast<std::int16_t>(code + 32);
  if (code >= 96 && code <= 111) {
    constexpr std::string_view characters{"0123456789*+\0-./", 16};
    return characters[static_cast<std::size_t>(code - 96)];
  }
  return code >= 256 ? code : std::int16_t{0};
}

}  // namespace awizo::keys
