#pragma once

#include <string>

#include "linedialog/dlg_dodaj.h"
#include "session/record/editor.h"

namespace awizo {

// The main form and the line dialog have a list of countries each, and both grow.

/// The main form's list gets the rows of the dialog's, and no text.
void copyCountries(Editor& editor, const DlgDodaj& dialog);

/// Adds the entry to both lists, unless the main form's has a row of exactly this text.
void addCountry(Editor& editor, DlgDodaj& dialog, const std::string& entry);

}  // namespace awizo
