#pragma once

#include "session/record/editor.h"

namespace awizo {

/// Whether the header allows a document to leave the editor. The first rule that fails shows its
/// warning, moves the focus, and returns false.
bool ValidateHeader(Editor& editor);

}  // namespace awizo
