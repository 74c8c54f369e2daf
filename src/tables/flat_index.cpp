#include "tables/flat_index.h"

#include "platform/narrow.h"

namespace awizo {

std::int16_t flatIndex(const Table& table, int row, int column) {
  return narrow16(std::int64_t{row} * table.columns() + column);
}

std::int16_t IndexGrdPozycje(const Editor& editor, std::int16_t row, std::int16_t col) {
  return flatIndex(editor.form.grdPozycje, row, col);
}

std::int16_t IndexGrdOpak(const Editor& editor, std::int16_t row, std::int16_t col) {
  return flatIndex(editor.form.grdOpakowania, row, col);
}

std::int16_t IndexGrdSuma(const Editor& editor, std::int16_t row, std::int16_t col) {
  return flatIndex(editor.form.grdSuma, row, col);
}

}  // namespace awizo
