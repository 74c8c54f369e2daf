#pragma once

#include <string>

#include "session/record/editor.h"

namespace awizo {

/// Why the line in this row of grdPozycje can't leave in a document: "цена не число"; empty for a
/// line that can, and for a row that holds none.
std::string lineFaultWords(const Editor& editor, int row);

/// The line in this row, with the columns that the table doesn't show: "17 · Кофе · заказано 6 ·
/// отгружено 6 · упаковано 0 · осталось 6 · цена не число". Empty for a row that holds no line.
std::string lineWords(const Editor& editor, int row);

/// A screen number without the zeros at its end; a text that is no number as it is.
std::string shortNumber(const Conversions& conversions, const std::string& text);

/// What of the line's despatched quantity lies in no package, as a number without zeros at its end;
/// below 0 where more is packed than despatched. Empty where either is no number.
std::string unpackedQuantity(const Editor& editor, int row);

}  // namespace awizo
