#pragma once

#include <string_view>

#include "platform/forms/form.h"

namespace awizo {

// Boxes of a procedure that checks what the user wants, under the title "VIRD".

/// Shows in a critical box what is wrong and moves the focus to `focus`, or leaves it where it is.
/// Returns false for the caller to return.
bool refuse(Screen& screen, std::string_view message, Control* focus);

/// The same in a box that warns.
bool warn(Screen& screen, std::string_view message, Control* focus);

/// Asks a question to be answered by Yes or No; true for Yes.
bool isConfirmed(Screen& screen, std::string_view question);

}  // namespace awizo
