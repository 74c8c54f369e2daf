#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "session/record/editor.h"

namespace awizo {

// The editor that lies over a cell of grdPozycje while the user changes the despatched quantity.

/// Opens the field over the table's current cell. A key code from 0 to 32 takes the cell's text
/// over, any other becomes the text itself. Sizes are twips.
void EditGridCell(Table& grid, TextField& edit, std::int16_t key);
/// Reacts to Enter (13), Escape (27), Up (38) and Down (40) in the field; other keys do nothing.
void EditKeyCode(Editor& editor, Table& grid, TextField& edit, std::int16_t KeyCode, bool Shift);
/// The quantity held between 0 and the ordered quantity of row EditRow, as screen number with 3
/// decimals; the empty text for a text that is no number.
std::string ClampQuantity(Editor& editor, std::string_view text);
/// Whether the text is a number; warns if it isn't.
bool CheckNumber(Work& work, std::string_view text);

// Events of the tables. The leave-cell handlers also serve to close an edit that is still open.
void grdPozycje_LeaveCell(Editor& editor);
void grdSuma_LeaveCell(Editor& editor);
void grdOpakowania_LeaveCell(Editor& editor);
/// Closes an edit that is still open, before a button does its work.
void closeOpenEdits(Editor& editor);
void grdPozycje_GotFocus(Editor& editor);
void grdPozycje_Scroll(Editor& editor);
/// `editLine` opens the line dialog, as btnEdytuj_Click does.
void grdPozycje_DblClick(Editor& editor, const std::function<void()>& editLine);
void grdPozycje_KeyPress(Editor& editor, std::int16_t keyAscii,
                         const std::function<void()>& editLine);

// Events of the field.
void txtEdycja_KeyDown(Editor& editor, std::int16_t KeyCode, bool Shift);
void txtEdycja_KeyPress(std::int16_t& keyAscii);
void txtEdycja_LostFocus(Editor& editor);
void txtEdycja_Validate(Editor& editor);

}  // namespace awizo
