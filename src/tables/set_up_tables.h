#pragma once

#include "session/record/editor.h"

namespace awizo {

/// Sets widths and alignments of the columns of the three tables.
void setUpTables(AwizoForm& form);

/// Writes the headings of the three tables. An error is shown and the rest is left out.
void UstawNaglowki(Editor& editor);

}  // namespace awizo
