#include "assistants/distribution_dialog.h"

#include <algorithm>
#include <array>
#include <numeric>
#include <set>

#include "desk/marked_rows.h"
#include "platform/text.h"
#include "tables/columns/column.h"
#include "tables/columns/columns.h"

namespace awizo {
namespace {

enum LineChoice { markedLines, allLines };
enum PackageChoice { markedPackages, packagesWithoutOthers };

constexpr int lineColumn = 0;
constexpr int goodsColumn = 1;
constexpr int packageColumn = DistributionDialog::packageColumn;
constexpr int quantityColumn = 3;
constexpr std::array partColumns{
    Column{lineColumn, "Строка", 900},
    Column{goodsColumn, "Название продукта", 4200},
    Column{packageColumn, "Упаковка", 4200},
    Column{quantityColumn, "Количество", 1500, Alignment::right},
};
static_assert(areInOrder(partColumns));

}  // namespace

DistributionDialog::DistributionDialog(const Editor& editor)
    : Form(editor.screen(), "DistributionDialog"),
      cboLines(*this, "cboLines", "Что:", ListStyle::listOnly),
      cboPackages(*this, "cboPackages", "Куда:", ListStyle::listOnly),
      cboSpread(*this, "cboSpread", "Как:", ListStyle::listOnly),
      txtEach(*this, "txtEach", "По сколько:"),
      grdParts(*this, "grdParts", static_cast<int>(partColumns.size())),
      lblSummary(*this, "lblSummary"),
      btnDo(*this, "btnDo", "&Разложить"),
      btnClose(*this, "btnClose", "&Назад"),
      editor_(editor) {
  setCaption("Разложить по упаковкам");
  acceptButton = &btnDo;
  closeButton = &btnClose;
  cboLines.setRows({"Отмеченные строки", "Всё, что не упаковано"});
  cboPackages.setRows({"Отмеченные упаковки", "Все, в которых нет других упаковок"});
  cboSpread.setRows({"Поровну", "По столько в каждую, остаток в последнюю", "Всё в первую"});
  cboSpread.setIndex(0);
  grdParts.selectsRows = true;
  setUpColumns(grdParts, partColumns);
  for (const Column& column : partColumns) grdParts.setCell(0, column.number, column.heading);
  for (DropDownList* list : {&cboLines, &cboPackages, &cboSpread}) {
    list->onClick = [this] { remake(); };
  }
  txtEach.onChange = [this] { remake(); };
  onActivate = [this] { cboLines.setFocus(); };
  btnDo.onClick = [this] { btnDo_Click(); };
  btnClose.onClick = [this] { hide(); };
}

std::optional<DistributionOrder> DistributionDialog::ask() {
  isFilling_ = true;
  cboLines.setIndex(markedRows(editor_.form.grdPozycje, editor_.session.LineCount).size() > 1
                        ? markedLines
                        : allLines);
  const std::size_t marked =
      markedRows(editor_.form.grdOpakowania, editor_.session.IloscPozycjiOpak).size();
  cboPackages.setIndex(marked > 1 ? markedPackages : packagesWithoutOthers);
  isFilling_ = false;
  remake();
  isAccepted_ = false;
  showModal();
  if (!isAccepted_) return std::nullopt;
  return order_;
}

std::vector<int> DistributionDialog::chosenLines() const {
  const int count = editor_.session.LineCount;
  if (cboLines.index() == markedLines) return markedRows(editor_.form.grdPozycje, count);
  std::vector<int> rows(static_cast<std::size_t>(count));
  std::iota(rows.begin(), rows.end(), 1);
  return rows;
}

std::vector<int> DistributionDialog::chosenPackages() const {
  const Table& packages = editor_.form.grdOpakowania;
  const int count = editor_.session.IloscPozycjiOpak;
  if (cboPackages.index() == markedPackages) return markedRows(packages, count);
  std::set<std::string> parents;
  for (int row = 1; row <= count; ++row) parents.insert(packages.cell(row, GRD_OPAK_PARENT_SERIAL));
  std::vector<int> rows;
  for (int row = 1; row <= count; ++row) {
    if (!parents.contains(packages.cell(row, GRD_OPAK_SERIAL))) rows.push_back(row);
  }
  return rows;
}

DistributionChoice DistributionDialog::choice() const {
  return {.lines = chosenLines(),
          .packages = chosenPackages(),
          .spread = static_cast<Spread>(cboSpread.index()),
          .each = thousandthsIn(editor_.conversions, txtEach.text())};
}

std::string DistributionDialog::refusal() const {
  if (order_.choice.packages.empty()) return "В документе нет упаковок.";
  if (order_.choice.spread == Spread::soMany && order_.choice.each < wholeUnit) {
    return "По сколько класть в каждую? Меньше единицы нельзя.";
  }
  const bool isAnything =
      std::ranges::any_of(order_.plans, [](const LinePlan& plan) { return !plan.parts.empty(); });
  return isAnything ? "" : std::string(nothingToPack);
}

void DistributionDialog::remake() {
  if (isFilling_) return;
  order_.choice = choice();
  order_.plans = plansOf(editor_, order_.choice);
  txtEach.setEnabled(order_.choice.spread == Spread::soMany);
  const std::string why = refusal();
  const auto whole = std::ranges::count_if(
      order_.plans, [this](const LinePlan& plan) { return leftWords(editor_, plan).empty(); });
  lblSummary.setCaption(!why.empty() ? why
                                     : joined({"Строк войдёт целиком: ", std::to_string(whole),
                                               " из ", std::to_string(order_.plans.size()), "."}));
  btnDo.setEnabled(why.empty());
  showParts();
}

void DistributionDialog::showParts() {
  const Table& lines = editor_.form.grdPozycje;
  const Table& packages = editor_.form.grdOpakowania;
  int count = 0;
  for (const LinePlan& plan : order_.plans) {
    count += static_cast<int>(plan.parts.size()) + (leftWords(editor_, plan).empty() ? 0 : 1);
  }
  grdParts.setRows(std::max(2, count + 1));
  for (const Column& column : partColumns) grdParts.setCell(1, column.number, "");
  int row = 0;
  const auto add = [&](int line, const std::string& where, Thousandths quantity) {
    grdParts.setCell(++row, lineColumn, lines.cell(line, GRD_POZ_LP));
    grdParts.setCell(row, goodsColumn, lines.cell(line, GRD_POZ_NAME));
    grdParts.setCell(row, packageColumn, where);
    grdParts.setCell(row, quantityColumn, quantityWords(editor_.conversions, quantity));
  };
  for (const LinePlan& plan : order_.plans) {
    for (const PlannedPart& part : plan.parts) {
      add(plan.row, packages.cell(order_.choice.packages[part.package], GRD_OPAK_DESC),
          part.quantity);
    }
    const std::string left = leftWords(editor_, plan);
    if (!left.empty()) add(plan.row, joined({"— ", left}), plan.left);
  }
  grdParts.setRow(1);
  grdParts.setTopRow(1);
}

void DistributionDialog::btnDo_Click() {
  isAccepted_ = true;
  hide();
}

}  // namespace awizo
