#pragma once

#include "session/record/editor.h"

namespace awizo {

/// Appends a row after the counted ones, numbers it in column 0 and returns the number. The first
/// row replaces the empty row of an empty table. Raises error 6 beyond 16 bits.
std::int16_t addNumberedRow(Table& grid, std::int16_t& count);

}  // namespace awizo
