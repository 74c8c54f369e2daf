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
/// Writes the dialog's values into a row; a new package spends the next serial. Answers whether it
/// came to its end: an error is told and leaves what was written, and a button that gets that
/// answer ends where it stands, with the table unpainted and the control as it then is.
[[nodiscard]] bool ZatwierdzPozycjeOpak(Editor& editor, DlgSzczegoly& dialog, std::int16_t row,
                                        bool isNew);
/// A public procedure of the control that does nothing.
inline void PrepareParents(std::string_view) {}

}  // namespace awizo
