#include "formats/advice_draft.h"

#include <utility>

#include "formats/advice_of_tables.h"
#include "platform/run_time_error.h"
#include "session/record/header_fields.h"
#include "tables/columns/columns.h"
#include "tables/row.h"

namespace awizo {
namespace {

PackageNotes packageNotes(const Row& row) {
  PackageNotes notes;
  notes.description = row.cell(GRD_OPAK_DESC);
  notes.parentDescription = row.cell(GRD_OPAK_PARENT_DESC);
  notes.level = row.cell(GRD_OPAK_LEVEL);
  return notes;
}

LineNotes lineNotes(const Row& row) {
  LineNotes notes;
  notes.weight = row.cell(GRD_POZ_WEIGHT);
  notes.taxCategory = row.cell(GRD_POZ_TAX_CATEGORY);
  notes.expiryDate = row.cell(GRD_POZ_EXPIRY_DATE);
  notes.productionDate = row.cell(GRD_POZ_PRODUCTION_DATE);
  notes.period = row.cell(GRD_POZ_PERIOD);
  notes.periodFormat = row.cell(GRD_POZ_PERIOD_FORMAT);
  notes.packages = row.cell(GRD_POZ_PACK_REFS);
  notes.packedQuantity = row.cell(GRD_POZ_PACKED_QTY);
  return notes;
}

/// The cells of the counted rows after these.
void addRowsAfter(std::size_t taken, const Table& table, int counted,
                  std::vector<std::string>& cells) {
  for (int row = static_cast<int>(taken) + 1; row <= counted && row < table.rows(); ++row) {
    for (int column = 0; column < table.columns(); ++column) {
      cells.push_back(table.cell(row, column));
    }
  }
}

std::optional<std::string> openEdit(const AwizoForm& form) {
  const Table& lines = form.grdPozycje;
  const bool isOpen = form.txtEdycja.visible();
  if (!isOpen || form.txtEdycja.text() == lines.cell(lines.row(), lines.column())) return {};
  return form.txtEdycja.text();
}

}  // namespace

AdviceDraft draftOf(const Editor& editor) {
  const AwizoForm& form = editor.form;
  DespatchAdvice advice;
  // What can't be read is taken cell by cell below.
  (void)caughtError([&] { readAdvice(editor, advice); });
  AdviceDraft draft;
  for (const HeaderField& field : headerFields(editor.form)) {
    draft.header.push_back(valueText(field));
  }
  draft.packages = std::move(advice.packages);
  draft.packageNotes.reserve(draft.packages.size());
  for (std::size_t i = 1; i <= draft.packages.size(); ++i) {
    draft.packageNotes.push_back(packageNotes(packageRow(editor, static_cast<int>(i))));
  }
  draft.lines = std::move(advice.lines);
  draft.lineNotes.reserve(draft.lines.size());
  for (std::size_t i = 1; i <= draft.lines.size(); ++i) {
    draft.lineNotes.push_back(lineNotes(lineRow(editor, static_cast<int>(i))));
  }
  addRowsAfter(draft.packages.size(), form.grdOpakowania, editor.session.IloscPozycjiOpak,
               draft.unreachable);
  addRowsAfter(draft.lines.size(), form.grdPozycje, editor.session.LineCount, draft.unreachable);
  draft.openEdit = openEdit(form);
  return draft;
}

}  // namespace awizo
