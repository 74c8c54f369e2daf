#include "platform/xpath_number.h"

#include <algorithm>
#include <cmath>

#include "platform/floating_text.h"

namespace awizo {
namespace {

constexpr std::string_view digits = "0123456789";

std::string_view withoutXmlBlanks(std::string_view text) {
  constexpr std::string_view blanks = " \t\r\n";
  const std::size_t first = text.find_first_not_of(blanks);
  if (first == text.npos) return {};
  return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

/// Digits, or digits with one point before, among or after them.
bool isUnsignedNumber(std::string_view text) {
  if (text.find_first_not_of("0123456789.") != text.npos) return false;
  return std::count(text.begin(), text.end(), '.') <= 1 && text.find_first_of(digits) != text.npos;
}

}  // namespace

std::optional<double> xpathNumber(std::string_view text) {
  text = withoutXmlBlanks(text);
  const bool negative = text.starts_with('-');
  if (negative) text.remove_prefix(1);
  if (!isUnsignedNumber(text)) return std::nullopt;
  std::optional<double> value = readFloating(text);
  if (!value) {
    const bool isLarge = text.find_first_of("123456789") < text.find('.');
    value = isLarge ? HUGE_VAL : 0.0;
  }
  return negative ? -*value : *value;
}

}  // namespace awizo
