#pragma once

#include "session/record/editor.h"

namespace awizo {

/// Checks the document, asks the user what has to be asked, and posts the despatch advice to the
/// service. The number of a document that the service accepted is kept, so that the user is asked
/// before the same number goes out again.
void btnPrzeslij_Click(Editor& editor);

}  // namespace awizo
