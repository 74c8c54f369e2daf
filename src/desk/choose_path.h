#pragma once

#include <string_view>

#include "formats/file_dialog.h"

namespace awizo {

/// Chooses the file of this classic path in the open dialog, as a user does, who finds it in the
/// lists. The dialog hides; where the lists don't show the file, without a choice.
void choosePath(DlgWczytajZapisz& dialog, std::string_view path);

}  // namespace awizo
