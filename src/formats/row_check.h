#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "session/record/editor.h"

namespace awizo {

/// A cell for which a line can't leave in a document.
struct RowFault {
  int column;
  std::string name;      ///< as BadColumnName takes it
  int customsField = 0;  ///< of a customs number, its field from 1 to 4
};

/// The first fault of the line in this row of grdPozycje. Error 6 beyond the last row that the cell
/// index reaches.
std::optional<RowFault> firstFault(Editor& editor, std::int16_t row);
/// The same without a word in the log, for who only tells it.
std::optional<RowFault> firstFaultToTell(const Editor& editor, std::int16_t row);

/// Whether the line in this row of grdPozycje can leave in a document. BadColumnName becomes the
/// name of the first cell that fails. Error 6 as firstFault.
bool CheckGridRow(Editor& editor, std::int16_t row);

/// Paints every line that passes white. Failing lines keep their colours; the current cell stays.
void RepaintValidRows(Editor& editor);

/// Counts the lines that pass into ValidLineCount and brings the totals up to date. The current
/// cell stays.
void CountValidRows(Editor& editor);

}  // namespace awizo
