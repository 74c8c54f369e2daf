#pragma once

#include "session/record/editor.h"

namespace awizo {

/// Adds a row behind those that are counted, writes its number into column 0 and gives it. The
/// first row takes the place of the empty table's blank one. Raises error 6 beyond 16 bits.
std::int16_t addNumberedRow(Table& grid, std::int16_t& count);

}  // namespace awizo
