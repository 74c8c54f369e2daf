#include "assistants/scanned_unit.h"

#include <algorithm>

#include "assistants/distributing.h"
#include "desk/layout_words.h"
#include "desk/line_search.h"
#include "platform/text.h"
#include "tables/columns/columns.h"
#include "tables/package_references.h"

namespace awizo {
namespace {

class UnitPlanner {
 public:
  UnitPlanner(const Editor& editor, int row, int package)
      : editor_(editor), row_(row), package_(package) {}

  Thousandths rest() const {
    return quantityIn(GRD_POZ_QTY_DESPATCHED) - quantityIn(GRD_POZ_PACKED_QTY);
  }

  LinePlan plan() const {
    if (rest() < wholeUnit) return {.row = row_, .left = rest()};
    const PlannedPart added = addedPart();
    const bool isOneMore =
        isLetThrough(added.quantity, quantityIn(GRD_POZ_QTY_DESPATCHED),
                     quantityIn(GRD_POZ_PACKED_QTY) - (added.quantity - wholeUnit));
    return {.row = row_, .parts = {isOneMore ? added : PlannedPart{.quantity = wholeUnit}}};
  }

 private:
  Thousandths quantityIn(int column) const {
    return thousandthsIn(editor_.conversions, editor_.form.grdPozycje.cell(row_, column));
  }

  /// One more of what was put into the package last.
  PlannedPart addedPart() const {
    PlannedPart part{.quantity = wholeUnit};
    const std::string& serial = editor_.form.grdOpakowania.cell(package_, GRD_OPAK_SERIAL);
    int number = 0;
    for (const PackageReference& reference :
         packageReferences(editor_.form.grdPozycje.cell(row_, GRD_POZ_PACK_REFS))) {
      ++number;
      if (reference.packageId != serial || !reference.quantity) continue;
      part.quantity = wholeUnit + thousandthsIn(editor_.conversions, *reference.quantity);
      part.replaced = number;
    }
    return part;
  }

  const Editor& editor_;
  int row_;
  int package_;
};

}  // namespace

std::string packScannedUnit(const Assistance& with, std::string_view ean) {
  const Editor& editor = with.control.editor;
  Table& lines = editor.form.grdPozycje;
  const std::vector<int> rows = linesScanned(editor, ean);
  if (rows.empty()) return joined({words::noSuchCode, ean});
  const int package = editor.form.grdOpakowania.row();
  if (package < 1 || package > editor.session.IloscPozycjiOpak) {
    return "Положить некуда: в документе нет упаковок";
  }
  const auto open = std::ranges::find_if(
      rows, [&](int row) { return UnitPlanner(editor, row, package).rest() >= wholeUnit; });
  const int row = open != rows.end() ? *open : rows.front();
  lines.userRow(row);
  const LinePlan plan = UnitPlanner(editor, row, package).plan();
  const auto packed = [&] {
    return joined(
        {"упаковано ",
         quantityWords(editor.conversions,
                       thousandthsIn(editor.conversions, lines.cell(row, GRD_POZ_PACKED_QTY))),
         " из ",
         quantityWords(
             editor.conversions,
             thousandthsIn(editor.conversions, lines.cell(row, GRD_POZ_QTY_DESPATCHED)))});
  };
  const std::string line = namedLine(editor, row);
  if (plan.parts.empty()) {
    const std::string left = leftWords(editor, plan);
    return joined({line, ": ", left.empty() ? packed() : left});
  }
  const AssistantReport report = distribute(with, {.lines = {row}, .packages = {package}}, {plan},
                                            {}, "единица товара в упаковку");
  if (!report.notDone.empty()) {
    return joined({report.notDone.front().what, ": ", report.notDone.front().why});
  }
  return joined(
      {editor.form.grdOpakowania.cell(package, GRD_OPAK_DESC), " ← ", line, ", ", packed()});
}

}  // namespace awizo
