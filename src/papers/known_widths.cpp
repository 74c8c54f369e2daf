#include "papers/known_widths.h"

#include "papers/font_table.h"
#include "platform/text.h"

namespace awizo::papers {
namespace {

/// Of a character that isn't known.
constexpr int widthOfOthers = 1229;

/// Of a character in UTF-8.
char32_t codePointOf(std::string_view character) {
  const auto first = static_cast<unsigned char>(character.front());
  if (character.size() == 1) return first;
  char32_t point = first & (0x7FU >> character.size());
  for (const char byte : character.substr(1)) {
    point = (point << 6U) | (static_cast<unsigned char>(byte) & 0x3FU);
  }
  return point;
}

int characterWidth(char32_t character, const std::array<std::uint16_t, widthCount>& widths) {
  std::size_t begin = 0;
  for (const auto& [first, last] : characterRanges) {
    if (character >= first && character <= last) return widths[begin + (character - first)];
    begin += last - first + 1;
  }
  return widthOfOthers;
}

}  // namespace

double KnownWidths::width(const std::string& text, const Font& font) const {
  std::int64_t units = 0;
  for (std::string_view rest = text; !rest.empty();) {
    const std::string_view letter = firstCharacters(rest, 1);
    units += characterWidth(codePointOf(letter), font.bold ? boldWidths : plainWidths);
    rest.remove_prefix(letter.size());
  }
  return static_cast<double>(units) / unitsInEm * font.size;
}

}  // namespace awizo::papers
