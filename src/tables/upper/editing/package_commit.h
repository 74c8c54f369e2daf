#pragma once

#include <cstdint>
#include <string_view>

#include "packagedialog/dlg_szczegoly.h"
#include "session/record/editor.h"

namespace awizo {

/// Adds a package: opens the dialog and, when the user confirms, writes a new row.
void btnDodajOpak_Click(Editor& editor, DlgSzczegoly& dialog);
/// Changes the package in the current row.
void btnEdytujOpak_Click(Editor& editor, DlgSzczegoly& dialog);
/// Rebuilds the lists of packages that the dialogs offer. A level that is no whole number raises
/// error 13. The text isn't used.
void PreparePackageArrays(Editor& editor, std::string_view text = "");
/// Writes the dialog's values into a row; a new package takes the next serial. Returns whether it
/// was completed: an error is shown and leaves what was written, and the button's procedure then
/// ends at once, without painting the table or resetting the control.
[[nodiscard]] bool ZatwierdzPozycjeOpak(Editor& editor, DlgSzczegoly& dialog, std::int16_t row,
                                        bool isNew);
/// A public procedure of the control that does nothing.
inline void PrepareParents(std::string_view) {}

}  // namespace awizo
