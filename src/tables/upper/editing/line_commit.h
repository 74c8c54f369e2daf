#pragma once

#include <cstdint>

#include "linedialog/dlg_dodaj.h"
#include "session/record/editor.h"

namespace awizo {

/// Adds a line: opens the dialog and, when the user confirms, writes a new row.
void btnDodaj_Click(Editor& editor, DlgDodaj& dialog);
/// Changes the line in the current row.
void btnEdytuj_Click(Editor& editor, DlgDodaj& dialog);
/// Writes the dialog's fields into a row of grdPozycje. Answers whether it came to its end: an
/// error is told and leaves what was written, and a button that gets that answer ends where it
/// stands, with the table unpainted and the control as it then is.
[[nodiscard]] bool ZatwierdzPozycje(Editor& editor, DlgDodaj& dialog, std::int16_t row);

}  // namespace awizo
