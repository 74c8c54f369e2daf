#pragma once

#include <cstdint>

#include "linedialog/dlg_dodaj.h"
#include "session/record/editor.h"

namespace awizo {

/// Adds a line: opens the dialog and, when the user confirms, writes a new row.
void btnDodaj_Click(Editor& editor, DlgDodaj& dialog);
/// Changes the line in the current row.
void btnEdytuj_Click(Editor& editor, DlgDodaj& dialog);
/// Writes the dialog's fields into a row of grdPozycje. Returns whether it was completed: an error
/// is shown and leaves what was written, and the button's procedure then ends at once, without
/// painting the table or resetting the control.
[[nodiscard]] bool ZatwierdzPozycje(Editor& editor, DlgDodaj& dialog, std::int16_t row);

}  // namespace awizo
