#include "formats/catalogue_index.h"

#include <charconv>
#include <cmath>
#include <optional>

#include "platform/xpath_number.h"

namespace awizo {
namespace {

constexpr std::string_view listPath = "/Document-ProductCatalogue/ProductCatalogue-Lines";

/// Whole numbers of up to this many digits are exact as floating numbers, so that comparing them as
/// integers is comparing them as XPath does.
constexpr std::size_t mostExactDigits = 15;
constexpr double exactLimit = 1e15;

bool isPlainNumber(std::string_view text) {
  return !text.empty() && text.size() <= mostExactDigits &&
         text.find_first_not_of("0123456789") == text.npos;
}

std::int64_t parsedInteger(std::string_view digitsAlone) {
  std::int64_t number = 0;
  std::from_chars(digitsAlone.data(), digitsAlone.data() + digitsAlone.size(), number);
  return number;
}

/// The text's number, if an EAN of plain digits can equal it.
std::optional<std::int64_t> exactInteger(std::string_view text) {
  if (isPlainNumber(text)) return parsedInteger(text);
  const std::optional<double> number = xpathNumber(text);
  if (!number || *number < 0 || *number >= exactLimit || *number != std::floor(*number)) {
    return std::nullopt;
  }
  return static_cast<std::int64_t>(*number);
}

}  // namespace

CatalogueIndex::CatalogueIndex(XmlDocument& catalogue, const std::vector<std::string>& eans)
    : catalogue_(catalogue) {
  for (const std::string& ean : eans) {
    if (isPlainNumber(ean)) lines_.emplace(parsedInteger(ean), XmlNode());
  }
  if (lines_.empty()) return;
  for (const XmlNode& list : catalogue.node().selectAll(listPath)) {
    for (XmlNode line = list.firstChild(); line; line = line.nextSibling()) {
      if (line.isElement("Line")) readLine(line);
    }
  }
}

/// Any EAN of a line finds it, whichever of its items has it.
void CatalogueIndex::readLine(const XmlNode& line) {
  for (XmlNode item = line.firstChild(); item; item = item.nextSibling()) {
    if (!item.isElement("Line-Item")) continue;
    for (XmlNode value = item.firstChild(); value; value = value.nextSibling()) {
      if (!value.isElement("EAN")) continue;
      const std::optional<std::int64_t> number = exactInteger(value.text());
      const auto asked = number ? lines_.find(*number) : lines_.end();
      if (asked != lines_.end() && !asked->second) asked->second = line;
    }
  }
}

XmlNode CatalogueIndex::find(std::string_view ean) const {
  if (isPlainNumber(ean)) return lines_.at(parsedInteger(ean));
  std::string path(listPath);
  path.append("/Line[Line-Item/EAN=").append(ean).append("]");
  return catalogue_.node().selectSingle(path);
}

}  // namespace awizo
