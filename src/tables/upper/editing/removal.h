#pragma once

#include "session/record/editor.h"

namespace awizo {

/// Removes the line in the current row; with the last line the header is emptied too.
void btnUsun_Click(Editor& editor);
/// Removes the package in the current row with all that lie in it, and every line's references.
void btnUsunOpak_Click(Editor& editor);

}  // namespace awizo
