// Procedures that write dialogs into the tables, and that fill columns over all lines.

#include <tuple>

#include "bulkfill/bulk_fill.h"
#include "hosts/protocol/procedures/control_procedures.h"
#include "tables/upper/editing/line_commit.h"
#include "tables/upper/editing/package_commit.h"
#include "tables/upper/editing/package_subtree.h"

namespace awizo::protocol {

/// The outside gets no answer of those that answer to their buttons alone.
void addCommitProcedures(Procedures& procedures, AwizoWysylki& control) {
  Editor& editor = control.editor;
  procedures.add("ZatwierdzPozycje", [&](std::int16_t row) {
    std::ignore = ZatwierdzPozycje(editor, control.dlgDodaj.touch(), row);
  });
  procedures.add("JednostkiMiaryNazwaToSymbol",
                 [&](Text name) { return control.JednostkiMiaryNazwaToSymbol(name); });
  procedures.add("ZatwierdzPozycjeOpak", [&](std::int16_t row, bool isNew) {
    std::ignore = ZatwierdzPozycjeOpak(editor, control.dlgSzczegoly.touch(), row, isNew);
  });
  procedures.add("PreparePackageArrays", [&](Text text) { PreparePackageArrays(editor, text); });
  procedures.add("PrepareParents", [](Text text) { PrepareParents(text); });
  procedures.add("GetPackagesRec", [&](std::int16_t row, std::vector<std::string>& delSerials) {
    GetPackagesRec(editor, row, delSerials);
  });
  procedures.add("FillLines", [&](bool overwrite) { FillLines(editor, overwrite); });
  procedures.add("FillLines2", [&](bool overwrite) { FillLines2(editor, overwrite); });
  procedures.add("CheckIsoCountry", [&](std::string& text) {
    CheckIsoCountry(editor.session, control.dlgIsoCodes, editor.platform.locale, text);
  });
}

}  // namespace awizo::protocol
