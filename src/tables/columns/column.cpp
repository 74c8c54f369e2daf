#include "tables/columns/column.h"

namespace awizo {

void setUpColumns(Table& table, std::span<const Column> columns) {
  for (const Column& column : columns) {
    table.setColumnWidth(column.number, column.width);
    table.setColumnAlignment(column.number, column.alignment);
  }
  const int used = static_cast<int>(columns.size());
  for (int column = used; column < table.columns(); ++column) table.setColumnWidth(column, 0);
}

}  // namespace awizo
