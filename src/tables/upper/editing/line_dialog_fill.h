#pragma once

#include <cstdint>

#include "linedialog/dlg_dodaj.h"
#include "session/record/editor.h"

namespace awizo {

/// Sets the dialog up for a line that is to be added.
void fillDialogForNewLine(Editor& editor, DlgDodaj& dialog);
/// Hands the row's cells to the dialog. A date cell that is no date raises error 13.
void fillDialogForEdit(Editor& editor, DlgDodaj& dialog, std::int16_t row);

}  // namespace awizo
