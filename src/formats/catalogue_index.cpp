#include "formats/catalogue_index.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <system_error>

namespace awizo {
namespace {

constexpr std::string_view linesPath = "/Document-ProductCatalogue/ProductCatalogue-Lines/Line";
constexpr std::string_view digits = "0123456789";

/// Whole numbers of so many digits are exact as floating numbers, so that comparing them as
/// integers is comparing them as XPath does.
constexpr std::size_t mostExactDigits = 15;
constexpr double exactLimit = 1e15;

bool isPlainNumber(std::string_view text) {
  return !text.empty() && text.size() <= mostExactDigits &&
         text.find_first_not_of(digits) == text.npos;
}

std::string_view withoutXmlBlanks(std::string_view text) {
  constexpr std::string_view blanks = " \t\r\n";
  const std::size_t first = text.find_first_not_of(blanks);
  if (first == text.npos) return {};
  return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

/// Digits, or digits with one point before, among or behind them.
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
  double value = 0;
  const auto [end, error] =
      std::from_chars(text.data(), text.data() + text.size(), value, std::chars_format::fixed);
  if (error == std::errc::result_out_of_range) {
    const bool isLarge = text.find_first_of("123456789") < text.find('.');
    value = isLarge ? HUGE_VAL : 0.0;
  }
  return negative ? -value : value;
}

XmlNode CatalogueIndex::find(std::string_view ean) {
  if (!isPlainNumber(ean)) {
    std::string path(linesPath);
    path.append("[Line-Item/EAN=").append(ean).append("]");
    return catalogue_.node().selectSingle(path);
  }
  if (!read_) readCatalogue();
  std::int64_t number = 0;
  std::from_chars(ean.data(), ean.data() + ean.size(), number);
  const auto found = lines_.find(number);
  return found == lines_.end() ? XmlNode() : found->second;
}

void CatalogueIndex::readCatalogue() {
  read_ = true;
  const std::vector<XmlNode> lines = catalogue_.node().selectAll(linesPath);
  lines_.reserve(lines.size());
  for (const XmlNode& line : lines) {
    // Any EAN of a line finds it, in whichever of its items it stands.
    for (const XmlNode& ean : line.selectAll("Line-Item/EAN")) {
      const std::optional<double> number = xpathNumber(ean.text());
      if (!number || *number < 0 || *number >= exactLimit || *number != std::floor(*number)) {
        continue;
      }
      lines_.emplace(static_cast<std::int64_t>(*number), line);
    }
  }
}

}  // namespace awizo
