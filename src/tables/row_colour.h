#pragma once

#include "platform/forms/table.h"

namespace awizo {

/// Gives the cells from column 1 on a background; the row's number in column 0 keeps its own.
inline void paintRow(Table& table, int row, int lastColumn, Colour colour) {
  for (int column = 1; column <= lastColumn; ++column) table.setBackground(row, column, colour);
}

}  // namespace awizo
