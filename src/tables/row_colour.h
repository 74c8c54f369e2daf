#pragma once

#include "platform/forms/table.h"

namespace awizo {

/// Sets the background of the cells from column 1 on; the row's number in column 0 keeps its
/// colour.
inline void paintRow(Table& table, int row, int lastColumn, Colour colour) {
  for (int column = 1; column <= lastColumn; ++column) table.setBackground(row, column, colour);
}

}  // namespace awizo
