#pragma once

#include <string_view>
#include <vector>

#include "session/record/editor.h"

namespace awizo {

/// Why the header doesn't allow a document to leave the editor.
struct HeaderFault {
  std::string_view message;
  Control* field;            ///< the field that it is about
  Control* focus = nullptr;  ///< where its warning moves the focus; null: nowhere
};

/// All of them, in the order of the rules.
std::vector<HeaderFault> headerFaults(const Editor& editor);

/// Whether the header allows a document to leave the editor. The first rule that fails shows its
/// warning, moves the focus, and answers false.
bool ValidateHeader(Editor& editor);

}  // namespace awizo
