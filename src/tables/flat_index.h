#pragma once

#include <cstdint>

#include "session/record/editor.h"

namespace awizo {

/// Flat index of a cell, row x columns + column, in 16 bits: error 6 beyond 32767. That overflow,
/// not a bound of the table, limits the tables, so every access goes through here.
std::int16_t flatIndex(const Table& table, int row, int column);

// The same for the three tables of the document.
std::int16_t IndexGrdPozycje(const Editor& editor, std::int16_t row, std::int16_t col);
std::int16_t IndexGrdOpak(const Editor& editor, std::int16_t row, std::int16_t col);
std::int16_t IndexGrdSuma(const Editor& editor, std::int16_t row, std::int16_t col);

}  // namespace awizo
