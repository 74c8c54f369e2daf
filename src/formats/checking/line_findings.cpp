#include "formats/checking/line_findings.h"

#include <array>
#include <string>

#include "formats/row_check.h"
#include "tables/columns/columns.h"
#include "tables/row.h"

namespace awizo {
namespace {

/// A column by the name that the line check gives it, and as the user calls it.
struct CheckedColumn {
  std::string_view checkName;
  int column;
  std::string_view name;
};

constexpr std::array<CheckedColumn, 5> checkedColumns{{
    {"EAN", GRD_POZ_EAN, "EAN"},
    {"Zamowiona ilosc", GRD_POZ_QTY_ORDERED, "количество заказа"},
    {"Potwierdzana ilosc", GRD_POZ_QTY_DESPATCHED, "отгруженное количество"},
    {"Cena netto", GRD_POZ_PRICE, "цена"},
    {"Wartosc netto", GRD_POZ_NET_AMOUNT, "сумма"},
}};

constexpr int none = -1;

/// More decimals than any number of a document has.
std::string exactText(const Conversions& conversions, std::string_view text) {
  return conversions.NormalizeDecimal(text, 15);
}

}  // namespace

void LineFindings::add(const XmlNode& line, std::int16_t row) {
  const int failing = failingColumn(row);
  if (failing != none) addFailure(line, row, failing);
  addNumbers(line, row, failing);
}

int LineFindings::failingColumn(std::int16_t row) {
  if (CheckGridRow(editor_, row)) return none;
  for (const CheckedColumn& checked : checkedColumns) {
    if (checked.checkName == editor_.form.BadColumnName) return checked.column;
  }
  return none;
}

void LineFindings::addFailure(const XmlNode& line, std::int16_t row, int column) {
  std::string name;
  for (const CheckedColumn& checked : checkedColumns) {
    if (checked.column == column) name = checked.name;
  }
  const std::string& value = lineRow(editor_, row).cell(column);
  const std::string text =
      "строка не пройдёт проверку: " +
      (value.empty() ? "нет значения (" + name + ")" : name + " " + quoted(value) + " не число");
  const XmlNode node = valueOf(line, column);
  found_.push_back(map_.finding(node ? node : line, text));
}

void LineFindings::addNumbers(const XmlNode& line, std::int16_t row, int failing) {
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
