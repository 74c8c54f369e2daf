// The line dialog's own procedures, and those of the small dialog of quantities.

#include "hosts/protocol/procedures/control_procedures.h"

namespace awizo::protocol {

namespace {

void addCodes(Procedures& procedures, DlgDodaj& dialog) {
  procedures.add("DlgDodaj.symbolJednostkiMiary",
                 [&](std::int16_t index) { return dialog.touch().symbolJednostkiMiary(index); });
  procedures.add("DlgDodaj.indexJednostkiMiary",
                 [&](Text code) { return dialog.touch().indexJednostkiMiary(code); });
  procedures.add("DlgDodaj.symbolKodVAT",
                 [&](std::int16_t index) { return dialog.touch().symbolKodVAT(index); });
  procedures.add("DlgDodaj.indexKodVAT",
                 [&](Text code) { return dialog.touch().indexKodVAT(code); });
  procedures.add("DlgDodaj.symbolStawkaVAT",
                 [&](std::int16_t index) { return dialog.touch().symbolStawkaVAT(index); });
  procedures.add("DlgDodaj.indexStawkaVAT",
                 [&](Text rate) { return dialog.touch().indexStawkaVAT(rate); });
}

void addPackageSection(Procedures& procedures, DlgDodaj& dialog) {
  procedures.add("DlgDodaj.GetMaxQuantity", [&] { return dialog.touch().GetMaxQuantity(); });
  procedures.add("DlgDodaj.UpdatePackedQuantity", [&] { dialog.touch().UpdatePackedQuantity(); });
  procedures.add("DlgDodaj.SetButtons", [&] { dialog.touch().SetButtons(); });
  procedures.add("DlgDodaj.IndexGrdPozycje", [&](std::int16_t row, std::int16_t col) {
    return dialog.touch().IndexGrdPozycje(row, col);
  });
  procedures.add("DlgDodaj.StringToGrid", [&](Text text) { dialog.touch().StringToGrid(text); });
  procedures.add("DlgDodaj.GridToString", [&] { return dialog.touch().GridToString(); });
}

}  // namespace

void addLineDialogProcedures(Procedures& procedures, AwizoWysylki& control) {
  DlgDodaj& dialog = control.dlgDodaj;
  addCodes(procedures, dialog);
  addPackageSection(procedures, dialog);
  procedures.add("DlgDodaj.Walidacja", [&] { return dialog.touch().Walidacja(); });
  procedures.add("DlgDodaj.CheckVAT", [&](std::int16_t which) { dialog.touch().CheckVAT(which); });
  procedures.add("DlgDodaj.MyCalculateAmount", [&] { return dialog.touch().MyCalculateAmount(); });
  procedures.add("DlgDodaj.MyCalculateExpiryDate",
                 [&] { return dialog.touch().MyCalculateExpiryDate(); });
  procedures.add("DlgDodaj.setFieldsValues",
                 [&](std::int16_t index) { dialog.touch().setFieldsValues(index); });
  procedures.add("DlgdodajPule.Walidacja", [&] { return control.dlgdodajPule.Walidacja(); });
}

}  // namespace awizo::protocol
