#include "tables/upper/editing/removal.h"

#include "formats/row_check.h"
#include "platform/forms/report_errors.h"
#include "platform/narrow.h"
#include "tables/columns/columns.h"
#include "tables/package_references.h"
#include "tables/row.h"
#include "tables/upper/editing/clear_form.h"
#include "tables/upper/editing/in_table_editing.h"
#include "tables/upper/editing/package_subtree.h"

namespace awizo {
namespace {

void removePackagesOfCurrentRow(Editor& editor, std::vector<std::string>& delSerials) {
  Table& grid = editor.form.grdOpakowania;
  DebugLog& log = editor.session.log;
  GetPackagesRec(editor, narrow16(grid.row()), delSerials);
  log.trace("After GetPackagesRec");
  log.trace("delSerials.Count = ", delSerials.size());
  removePackageRows(editor, delSerials);
  grid.setRow(1);
  grid.setColumn(1);
}

/// Every line is rewritten, whether it held one of the packages or not.
void removeReferences(Editor& editor, const SerialSet& delSerials) {
  DebugLog& log = editor.session.log;
  for (std::int16_t m = 1; m <= editor.session.LineCount; ++m) {
    log.trace("Usuwanie opak - usuwanie ref przed m = ", m);
    const Row line = lineRow(editor, m);
    line.set(GRD_POZ_PACK_REFS, RemoveOldPackRef(editor, line.cell(GRD_POZ_PACK_REFS), delSerials));
    line.set(GRD_POZ_PACKED_QTY, GetPackedQuantity(editor, line.cell(GRD_POZ_PACK_REFS)));
    log.trace("Usuwanie opak - usuwanie ref po m = ", m);
  }
}

}  // namespace

void btnUsun_Click(Editor& editor) {
  if (editor.session.LineCount == 0) return;
  reportErrors(editor.screen(), "Произошла ошибка в btnUsun_Click()", [&] {
    Table& grid = editor.form.grdPozycje;
    closeOpenEdits(editor);
    grid.setRedraw(false);
    std::int16_t& count = editor.session.LineCount;
    if (count != 1) {
      count = narrow16(count - 1);
      grid.removeItem(grid.row());
      grid.setRows(count + 1);
    } else {
      count = 0;
      ClearForm(editor);
    }
    CountValidRows(editor);
    grid.refresh();
    grid.setRedraw(true);
  });
}

void btnUsunOpak_Click(Editor& editor) {
  if (editor.session.IloscPozycjiOpak == 0) return;
  reportErrors(editor.screen(), "Произошла ошибка в btnUsunOpak_Click()", [&] {
    Table& grid = editor.form.grdOpakowania;
    closeOpenEdits(editor);
    grid.setRedraw(false);
    Cursor earlier = editor.screen().setCursor(editor.session.WaitCursor);
    std::vector<std::string> delSerials;
    removePackagesOfCurrentRow(editor, delSerials);
    editor.screen().setCursor(earlier);
    CountValidRows(editor);
    grid.refresh();
    grid.setRedraw(true);
    earlier = editor.screen().setCursor(editor.session.WaitCursor);
    removeReferences(editor, SerialSet(delSerials));
    editor.screen().setCursor(earlier);
  });
}

}  // namespace awizo
