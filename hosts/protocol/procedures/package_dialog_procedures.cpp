#include "hosts/protocol/procedures/control_procedures.h"
#include "packagedialog/package_types.h"

namespace awizo::protocol {

void addPackageDialogProcedures(Procedures& procedures, AwizoWysylki& control) {
  DlgSzczegoly& dialog = control.dlgSzczegoly;
  const Locale& locale = control.editor.platform.locale;
  procedures.add("DlgSzczegoly.symbolPackageType", [&](std::int16_t index) {
    dialog.touch();
    return symbolPackageType(index);
  });
  procedures.add("DlgSzczegoly.indexPackageType", [&](Text code) {
    dialog.touch();
    return indexPackageType(locale, code);
  });
  procedures.add("DlgSzczegoly.PreparePackages",
                 [&](bool editMode) { dialog.touch().PreparePackages(editMode); });
  procedures.add("DlgSzczegoly.IsKnownSerial",
                 [&](Text text) { return dialog.touch().IsKnownSerial(text); });
  procedures.add("DlgSzczegoly.IsKnownDescription",
                 [&](Text text) { return dialog.touch().IsKnownDescription(text); });
  procedures.add("DlgSzczegoly.Walidacja", [&] { return dialog.touch().Walidacja(); });
  procedures.add("DlgSzczegoly.LoadLocalizationDictionary",
                 [&] { dialog.touch().LoadLocalizationDictionary(); });
  procedures.add("DlgSzczegoly.cboxILNLokalizacji_Change_PublicWrapper",
                 [&] { dialog.touch().cboxILNLokalizacji_Change_PublicWrapper(); });
}

}  // namespace awizo::protocol
