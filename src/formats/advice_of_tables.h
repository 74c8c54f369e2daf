#pragma once

#include "formats/despatch_advice.h"
#include "session/record/editor.h"

namespace awizo {

/// The despatch advice as the header fields and the tables hold it, as many rows as are counted.
/// Error 6 or 381 for a row that isn't within the reach of the cell index, or isn't there.
DespatchAdvice adviceOf(const Editor& editor);

/// The same into `advice`, part by part: an error leaves there what was made before it.
void readAdvice(const Editor& editor, DespatchAdvice& advice);

}  // namespace awizo
