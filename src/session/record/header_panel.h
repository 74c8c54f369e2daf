#pragma once

#include "session/record/editor.h"

namespace awizo {

/// Shows buyer and seller of the session in their labels.
void showParties(Editor& editor);

/// Shows the parties, today as the document's date and the defaults of the header. An error is
/// shown and leaves the header as far as it got.
void SetHeader(Editor& editor);

}  // namespace awizo
