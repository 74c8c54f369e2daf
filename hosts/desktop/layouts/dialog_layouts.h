#pragma once

#include "hosts/desktop/layouts/form_dialog.h"

namespace awizo {
class DistributionDialog;
class DlgDodaj;
class DlgdodajPule;
class DlgIsoCodes;
class DlgSzczegoly;
class DlgWczytajZapisz;
class FaultList;
class FindDialog;
class NumberRangeDialog;
class PackagesDialog;
class PapersDialog;
}  // namespace awizo

namespace awizo::desktop {

// One layout for each dialog: puts every face into the window.
void layOut(DistributionDialog& form, FormDialog& dialog);
void layOut(DlgDodaj& form, FormDialog& dialog);
void layOut(DlgdodajPule& form, FormDialog& dialog);
void layOut(DlgIsoCodes& form, FormDialog& dialog);
void layOut(DlgSzczegoly& form, FormDialog& dialog);
void layOut(DlgWczytajZapisz& form, FormDialog& dialog);
void layOut(FaultList& form, FormDialog& dialog);
void layOut(FindDialog& form, FormDialog& dialog);
void layOut(NumberRangeDialog& form, FormDialog& dialog);
void layOut(PackagesDialog& form, FormDialog& dialog);
void layOut(PapersDialog& form, FormDialog& dialog);
/// Any other form: its controls one below the other in their order.
void layOut(Form& form, FormDialog& dialog);

}  // namespace awizo::desktop
