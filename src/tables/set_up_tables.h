#pragma once

#include "session/record/editor.h"

namespace awizo {

/// Gives the columns of the three tables their widths and alignments.
void setUpTables(AwizoForm& form);

/// Writes the headings of the three tables. An error is shown and the rest is left out.
void UstawNaglowki(Editor& editor);

}  // namespace awizo
