#pragma once

#include "linedialog/dlg_dodaj.h"

namespace awizo {

/// Whether the line may be accepted; shows the user the first fault. Leaves the fields tidied as
/// far as it came, and an accepted country as its bare code.
bool Walidacja(Work& work, DlgDodaj& dialog, DlgIsoCodes& isoCodes);

// Leaving a field tidies its text and never refuses.
void txtIloscZam_Validate(const Conversions& conversions, DlgDodaj& dialog);
void txtIloscPotw_Validate(const Conversions& conversions, DlgDodaj& dialog);
void txtCenaNetto_Validate(const Conversions& conversions, DlgDodaj& dialog);
void txtAmount_Validate(const Conversions& conversions, DlgDodaj& dialog);
void txtCDN1_Validate(const Conversions& conversions, DlgDodaj& dialog);
void txtCDN3_Validate(const Conversions& conversions, DlgDodaj& dialog);

}  // namespace awizo
