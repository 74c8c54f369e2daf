#pragma once

#include <span>
#include <string_view>

#include "platform/forms/table.h"

namespace awizo {

/// One column of a table. A column of no width is a hidden field of its rows.
struct Column {
  int number;
  std::string_view heading;
  int width = 0;  ///< twips
  Alignment alignment = Alignment::left;
};

/// The columns in the order of their numbers, from 0 and without a gap.
template <class Columns>
constexpr bool areInOrder(const Columns& columns) {
  int number = 0;
  for (const Column& column : columns) {
    if (column.number != number++) return false;
  }
  return true;
}

/// Gives the table's columns their widths and alignments; columns that aren't described are hidden.
void setUpColumns(Table& table, std::span<const Column> columns);

}  // namespace awizo
