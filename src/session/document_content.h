#pragma once

#include <string>

#include "session/record/editor.h"

namespace awizo {

/// All that the user may have entered into the document, as one text: two that are equal are the
/// same document. Which cell is current, how wide columns are and the like doesn't count.
std::string documentContent(const Editor& editor);

}  // namespace awizo
