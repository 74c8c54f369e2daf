#include "formats/upper/checking/line_findings.h"

#include <string>

#include "formats/row_check.h"
#include "tables/columns/columns.h"
#include "tables/row.h"

namespace awizo {
namespace {

/// A column of a number, as the user calls it.
std::string_view nameOfNumber(int column) {
  switch (column) {
    case GRD_POZ_EAN:
      return "EAN";
    case GRD_POZ_QTY_ORDERED:
      return "количество заказа";
    case GRD_POZ_QTY_DESPATCHED:
      return "отгруженное количество";
    case GRD_POZ_PRICE:
      return "цена";
    case GRD_POZ_NET_AMOUNT:
      return "сумма";
    default:
      return lineColumns[static_cast<std::size_t>(column)].heading;
  }
}

/// More decimals than any number of a document has.
std::string exactText(const Conversions& conversions, std::string_view text) {
  return conversions.NormalizeDecimal(text, 15);
}

}  // namespace

void LineFindings::add(const XmlNode& line, std::int16_t row) {
  const std::optional<RowFault> fault = firstFault(editor_, row);
  if (fault) addFailure(line, row, fault->column);
  addNumbers(line, row, fault ? std::optional(fault->column) : std::nullopt);
}

void LineFindings::addFailure(const XmlNode& line, std::int16_t row, int column) {
  const std::string name(nameOfNumber(column));
  const std::string& value = lineRow(editor_, row).cell(column);
  const std::string text =
      "строка не пройдёт проверку: " +
      (value.empty() ? "нет значения (" + name + ")" : name + " " + quoted(value) + " не число");
  const XmlNode node = valueOf(line, column);
  found_.push_back(map_.finding(node ? node : line, text));
}

void LineFindings::addNumbers(const XmlNode& line, std::int16_t row, std::optional<int> failing) {
  const Conversions& conversions = editor_.conversions;
  std::string_view lastPath;
  for (const Column& column : lineColumns) {
    const LineSource& source = sources_[static_cast<std::size_t>(column.number)];
    // One value can fill two columns.
    if (source.decimals == asItStands || source.path == lastPath) continue;
    lastPath = source.path;
    if (column.number == failing) continue;
    const XmlNode node = valueOf(line, column.number);
    const std::string& shown = lineRow(editor_, row).cell(column.number);
    if (!node || shown.empty()) continue;
    if (!conversions.isNumeric(shown)) {
      found_.push_back(map_.finding(node, quoted(shown) + " не число, останется как есть"));
    } else if (exactText(conversions, node.text()) != exactText(conversions, shown)) {
      found_.push_back(
          map_.finding(node, quoted(node.text()) + " будет прочитано как " + quoted(shown)));
    }
  }
}

XmlNode LineFindings::valueOf(const XmlNode& line, int column) const {
  const std::string_view path = sources_[static_cast<std::size_t>(column)].path;
  return path.empty() || !line.isElement("Line") ? XmlNode() : line.selectSingle(path);
}

}  // namespace awizo
