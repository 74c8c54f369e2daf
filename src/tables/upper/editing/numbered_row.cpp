#include "tables/upper/editing/numbered_row.h"

#include "platform/narrow.h"
#include "tables/row.h"

namespace awizo {

std::int16_t addNumberedRow(Table& grid, std::int16_t& count) {
  if (count != 0) {
    count = narrow16(count + 1);
    grid.addItem(std::to_string(count));
    grid.setRows(narrow16(count + 1));
  } else {
    count = 1;
    grid.setRows(2);
    Row(grid, 1).set(0, "1");
  }
  return count;
}

}  // namespace awizo
