#pragma once

#include "session/record/editor.h"

namespace awizo {

/// Makes the form ready before anything is read: lists, tables, headings, the locale's separator,
/// the version. An error is shown to the user and ends the program.
void setUpControl(Editor& editor);

}  // namespace awizo
