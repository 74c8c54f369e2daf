#pragma once

#include "hosts/desktop/layouts/form_dialog.h"

namespace awizo::desktop {

/// The window of a dialog form with all its faces laid out, hidden yet. A form that has no layout
/// of its own gets its controls one below the other.
FormDialog* makeDialog(Form& form, QWidget* parent);

}  // namespace awizo::desktop
