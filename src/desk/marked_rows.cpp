#include "desk/marked_rows.h"

#include <algorithm>

namespace awizo {

std::vector<int> markedRows(const Table& table, int count) {
  std::vector<int> rows;
  const int last = std::min(count, std::max(table.row(), table.rowSel()));
  for (int row = std::max(1, std::min(table.row(), table.rowSel())); row <= last; ++row) {
    rows.push_back(row);
  }
  return rows;
}

}  // namespace awizo
