#pragma once

#include <cstdint>
#include <optional>

#include "linedialog/dlg_dodaj.h"
#include "session/record/editor.h"

namespace awizo {

/// The start-up, when the host shows the control: from the local folder and, on line, from the
/// service. What makes work impossible is shown to the user, and the control stays disabled.
void UserControl_Show(Editor& editor, DlgDodaj& lineDialog);

/// The number in a property's text as the log's level; none where it is no number or too large.
std::optional<std::int16_t> debugLevel(const Editor& editor);

}  // namespace awizo
