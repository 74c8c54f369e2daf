#pragma once

#include <string_view>

#include "session/record/editor.h"

namespace awizo {

/// What the service answered in place of "OK" stands after these words, in a critical box.
inline constexpr std::string_view refusalWords = "Произошла ошибка:";
/// Stands there where the answer has no status, or where none came.
inline constexpr std::string_view noStatus = "-1";

/// Checks the document, asks the user what has to be asked, and posts the despatch advice to the
/// service. The number of a document that the service accepted is kept, so that the user is asked
/// before the same number goes out again.
void btnPrzeslij_Click(Editor& editor);

}  // namespace awizo
