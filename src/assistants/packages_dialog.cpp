#include "assistants/packages_dialog.h"

#include <charconv>

#include "packagedialog/package_types.h"
#include "platform/text.h"
#include "tables/columns/columns.h"

namespace awizo {
namespace {

// Rows of the list of types.
constexpr int pallet = 0;
constexpr int box = 1;

/// 0 for what is no number.
int countIn(std::string_view text) {
  int count = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), count);
  return error == std::errc() && end == text.data() + text.size() ? count : 0;
}

}  // namespace

PackagesDialog::PackagesDialog(const Editor& editor, NumberOffer* numbers)
    : Form(editor.screen(), "PackagesDialog"),
      txtCount(*this, "txtCount", "Сколько упаковок:"),
      cboType(*this, "cboType", "Тип упаковки:", ListStyle::listOnly),
      txtDescription(*this, "txtDescription", "Описание (# — номер по порядку):"),
      cboParent(*this, "cboParent", "Внешняя упаковка:", ListStyle::listOnly),
      txtWeight(*this, "txtWeight", "Вес каждой, кг:"),
      txtLength(*this, "txtLength", "Длина, м:"),
      txtWidth(*this, "txtWidth", "Ширина, м:"),
      txtHeight(*this, "txtHeight", "Высота, м:"),
      txtPlace(*this, "txtPlace", "ILN места доставки:"),
      lblExample(*this, "lblExample"),
      lblNumbers(*this, "lblNumbers"),
      lblRefusal(*this, "lblRefusal"),
      btnAdd(*this, "btnAdd", "&Добавить"),
      btnClose(*this, "btnClose", "&Назад"),
      editor_(editor),
      numbers_(numbers) {
  setCaption("Несколько упаковок");
  acceptButton = &btnAdd;
  closeButton = &btnClose;
  cboType.setRows(packageTypeRows());
  chooseType(box);
  cboType.onClick = [this] { offerDescription(); };
  onActivate = [this] { txtCount.setFocus(); };
  txtCount.onChange = [this] { tell(); };
  txtDescription.onChange = [this] { tell(); };
  btnAdd.onClick = [this] { btnAdd_Click(); };
  btnClose.onClick = [this] { hide(); };
}

std::optional<PackagePlan> PackagesDialog::ask() {
  txtCount.setText("");
  offerParents();
  offerPlace();
  tell();
  isAccepted_ = false;
  showModal();
  if (!isAccepted_) return std::nullopt;
  return typedPlan();
}

void PackagesDialog::offerParents() {
  const Table& packages = editor_.form.grdOpakowania;
  std::vector<std::string> rows{"нет"};
  int chosen = 0;
  for (int row = 1; row <= editor_.session.IloscPozycjiOpak; ++row) {
    rows.push_back(packages.cell(row, GRD_OPAK_DESC));
    // Who stands on a pallet is about to fill it.
    if (row == packages.row() && packages.cell(row, GRD_OPAK_TYPE) == symbolPackageType(pallet)) {
      chosen = row;
    }
  }
  cboParent.setRows(std::move(rows));
  cboParent.setIndex(chosen);
  // Nobody puts a pallet on a pallet.
  if (chosen > 0 && cboType.index() == pallet) chooseType(box);
}

void PackagesDialog::chooseType(int row) {
  cboType.setIndex(row);
  offerDescription();
}

void PackagesDialog::offerDescription() {
  if (txtDescription.text() != offeredDescription_) return;
  offeredDescription_ = joined({cboType.text(), " #"});
  txtDescription.setText(offeredDescription_);
}

void PackagesDialog::offerPlace() {
  const int last = editor_.session.IloscPozycjiOpak;
  txtPlace.setText(last > 0 ? editor_.form.grdOpakowania.cell(last, GRD_OPAK_LOCATION_ILN)
                            : editor_.form.lblILNMiejscaDostValue.caption());
}

PackagePlan PackagesDialog::typedPlan() const {
  return {.type = cboType.index(),
          .parent = cboParent.index() - 1,
          .count = countIn(trimmed(txtCount.text())),
          .description = txtDescription.text(),
          .weight = txtWeight.text(),
          .length = txtLength.text(),
          .width = txtWidth.text(),
          .height = txtHeight.text(),
          .deliveryPlace = txtPlace.text()};
}

void PackagesDialog::tell() {
  const PackagePlan plan = typedPlan();
  const bool isPossible = planRefusal(plan, editor_).empty();
  std::string example, numbers;
  if (isPossible) {
    const std::vector<std::string> descriptions = descriptionsOf(plan, editor_);
    example = descriptions.front();
    if (plan.count > 1) example += joined({" … ", descriptions.back()});
    if (numbers_ != nullptr) numbers = numbers_->wordsFor(static_cast<std::size_t>(plan.count));
  }
  lblExample.setCaption(example);
  lblNumbers.setCaption(numbers);
  lblRefusal.setCaption("");
}

void PackagesDialog::btnAdd_Click() {
  lblRefusal.setCaption(planRefusal(typedPlan(), editor_));
  if (!lblRefusal.caption().empty()) return;
  isAccepted_ = true;
  hide();
}

}  // namespace awizo
