#pragma once

#include "linedialog/dlg_dodaj.h"
#include "linedialog/dlg_iso_codes.h"
#include "session/record/editor.h"

namespace awizo {

/// Writes the rate of comboStawkaVAT and its category into all lines, or into those whose rate is
/// missing (empty or "-1"), after a question.
void FillLines(Editor& editor, bool overwrite);
/// The same with the country of comboCountry; the lines aren't counted again.
void FillLines2(Editor& editor, bool overwrite);

void btnUzupelnij_Click(Editor& editor);
void btnNadpisz_Click(Editor& editor);
void btnUzupelnij2_Click(Editor& editor, DlgIsoCodes& isoCodes, DlgDodaj& lineDialog);
void btnNadpisz2_Click(Editor& editor, DlgIsoCodes& isoCodes, DlgDodaj& lineDialog);

}  // namespace awizo
