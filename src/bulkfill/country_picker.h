#pragma once

#include "linedialog/dlg_dodaj.h"
#include "linedialog/dlg_iso_codes.h"
#include "session/record/editor.h"

namespace awizo {

/// The picture beside the main form's list of countries: picks a country from the whole list, and
/// adds it to both lists of countries if it is new.
void Image2_Click(Editor& editor, DlgIsoCodes& isoCodes, DlgDodaj& lineDialog);

}  // namespace awizo
