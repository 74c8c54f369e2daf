#pragma once

#include "session/record/editor.h"

namespace awizo {

/// Empties the header, the lines and the totals. The packages and their counters stay.
void ClearForm(Editor& editor);

}  // namespace awizo
