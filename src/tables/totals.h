#pragma once

#include <string>

#include "session/record/editor.h"

namespace awizo {

/// Recomputes the totals from the lines: their number, the despatched quantity and the net amount.
/// Without lines the totals stay as they are. Leaves the current cell of the lines' table on the
/// last row, column 11. An error is shown, with the totals partly written.
void PoprawGrdSuma(Editor& editor);

/// Total weight in kilograms, as plain number text; the form's label warns where a line has no
/// weight. Leaves the current row on the last line. Raises error 6 for a weight too large.
std::string MyCalculateWeight(Editor& editor);

/// Weight of one line in kilograms: quantity (3 decimals) times the weight of one unit (2
/// decimals), rounded to 3. Commas and points of both texts become the locale's separator in place.
/// For a weight that is no number or not above 0 returns 0 and marks the weight as incomplete.
double MyCalculatePartWeight(Editor& editor, std::string& quantity, std::string& weight);

}  // namespace awizo
