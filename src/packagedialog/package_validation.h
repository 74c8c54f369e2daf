#pragma once

#include "packagedialog/dlg_szczegoly.h"

namespace awizo {

/// Whether the package may be accepted; shows the user the first fault. The measures are tidied as
/// far as it came.
bool Walidacja(Work& work, DlgSzczegoly& dialog);

}  // namespace awizo
