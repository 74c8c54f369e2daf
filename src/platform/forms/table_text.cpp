#include "platform/forms/table_text.h"

#include <algorithm>
#include <vector>

#include "platform/text.h"

namespace awizo {
namespace {

std::vector<int> shownColumns(const Table& table, int from, int to) {
  std::vector<int> shown;
  for (int column = from; column <= to; ++column) {
    if (table.columnWidth(column) > 0) shown.push_back(column);
  }
  return shown;
}

std::string quoted(const std::string& text) {
  if (text.find_first_of("\t\r\n\"") == std::string::npos) return text;
  return '"' + replaceAll(text, "\"", "\"\"") + '"';
}

}  // namespace

std::string markedText(const Table& table) {
  const auto [top, bottom] = std::minmax({table.row(), table.rowSel()});
  const auto [left, right] = std::minmax({table.column(), table.columnSel()});
  std::vector<int> columns;
  if (!table.selectsRows) columns = shownColumns(table, left, right);
  if (columns.empty()) columns = shownColumns(table, 0, table.columns() - 1);
  std::string text;
  for (int row = top; row <= bottom; ++row) {
    std::string separator;
    for (const int column : columns) {
      text += separator + quoted(table.cell(row, column));
      separator = "\t";
    }
    text += '\n';
  }
  return text;
}

bool hasText(const Table& table, int row) {
  for (int column = 0; column < table.columns(); ++column) {
    if (!table.cell(row, column).empty()) return true;
  }
  return false;
}

}  // namespace awizo
