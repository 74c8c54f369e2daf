#include <array>
#include <cmath>

#include "linedialog/dlg_dodaj.h"
#include "platform/narrow.h"
#include "platform/text.h"
#include "tables/flat_index.h"
#include "tables/package_references.h"

namespace awizo {
namespace {

constexpr CellLook boldHeading{white, Alignment::centre, true, false};

// Half goes to the even neighbour, as the floating unit rounds.
std::int32_t wholeNumber(double value) {
  const double rounded = std::nearbyint(value);
  if (!(rounded >= -2147483648.0 && rounded <= 2147483647.0)) throw errors::overflow();
  return static_cast<std::int32_t>(rounded);
}

}  // namespace

void DlgDodaj::setUpPackageTable() {
  constexpr std::array<int, 5> widths{0, 0, 4605, 950, 2200};
  for (int column = 0; column < 5; ++column) {
    grdPozycje.setColumnWidth(column, widths[static_cast<std::size_t>(column)]);
  }
  grdPozycje.setColumnAlignment(1, Alignment::centre);
  grdPozycje.setColumnAlignment(3, Alignment::centre);
  grdPozycje.setColumnAlignment(4, Alignment::right);
  writePackageHeadings(grdPozycje, boldHeading);
}

double DlgDodaj::GetMaxQuantity() {
  DebugLog& log = editor_.session.log;
  log.WriteDebugLine("GetMaxQuantity lblPackedQuantityValue = " + lblPackedQuantityValue.caption());
  log.WriteDebugLine("GetMaxQuantity txtIloscPotw = " + txtIloscPotw.text());
  const Conversions& conversions = editor_.conversions;
  return conversions.MyDouble(std::string(trimmed(txtIloscPotw.text()))) -
         conversions.MyDouble(std::string(lblPackedQuantityValue.caption()));
}

void DlgDodaj::UpdatePackedQuantity() {
  const Conversions& conversions = editor_.conversions;
  double sum = 0;
  for (int row = 1; row < grdPozycje.rows(); ++row) {
    sum += conversions.MyDouble(std::string(grdPozycje.cell(row, 4)));
  }
  lblPackedQuantityValue.setCaption(conversions.NormalizeDecimal(conversions.plainNumber(sum), 3));
}

// The highest index of the offered packages' lists; the packages are the elements below it.
int DlgDodaj::packageBound() const {
  return static_cast<int>(editor_.session.ParentSerials.size()) - 1;
}

// A line that lies in packages entirely can't get another one, but its assignments can change: so
// the last rule overrules the first for Command3.
void DlgDodaj::SetButtons() {
  DebugLog& log = editor_.session.log;
  const Conversions& conversions = editor_.conversions;
  const double k = GetMaxQuantity();
  const bool hasPackages = packageBound() >= 1;
  const bool canAdd = hasPackages && k > 0;
  Command1.setEnabled(canAdd);
  Command3.setEnabled(canAdd);
  log.WriteDebugLine("SetButtons k = " + conversions.plainNumber(k));
  const double x = conversions.MyDouble(std::string(trimmed(txtIloscPotw.text())));
  const bool canChange = hasPackages && x != k;
  Command2.setEnabled(canChange);
  Command3.setEnabled(canChange);
  log.WriteDebugLine("SetButtons x = " + conversions.plainNumber(x));
}

std::int16_t DlgDodaj::IndexGrdPozycje(std::int16_t row, std::int16_t column) const {
  return flatIndex(grdPozycje, row, column);
}

void DlgDodaj::offerQuantity(double most, double offered) {
  quantityDialog_.UpDown1.setMin(1);
  quantityDialog_.UpDown1.setMax(wholeNumber(most));
  quantityDialog_.txtQuantity.setText(
      editor_.conversions.NormalizeDecimal(editor_.conversions.plainNumber(offered), 0));
}

void DlgDodaj::Command1_Click() {
  DlgdodajPule& dialog = quantityDialog_;
  dialog.txtQuantity.setText("");
  dialog.setCaption("Добавь товар в упаковку");
  dialog.btnDodaj.setCaption("&Добавить");
  dialog.cboxPackages.clear();
  for (int i = 0; i < packageBound(); ++i) {
    dialog.cboxPackages.addRow(editor_.session.ParentDescriptions[static_cast<std::size_t>(i)]);
  }
  if (packageBound() > 0) dialog.cboxPackages.setIndex(0);
  const double most = GetMaxQuantity();
  offerQuantity(most, most);
  dialog.showModal();
  if (dialog.DlgResult == 1) {
    grdPozycje.setRedraw(false);
    int row = 1;
    if (grdPozycje.rows() != 2 || !grdPozycje.cell(IndexGrdPozycje(1, 1)).empty()) {
      row = grdPozycje.rows();
      grdPozycje.addItem(std::to_string(row));
    }
    writeAssignment(row);
    grdPozycje.setRow(row);
    grdPozycje.setRedraw(true);
    UpdatePackedQuantity();
    SetButtons();
  }
  grdPozycje.setFocus();
}

void DlgDodaj::writeAssignment(int row) {
  const SessionState& session = editor_.session;
  const auto package = static_cast<std::size_t>(quantityDialog_.cboxPackages.index());
  if (package >= session.ParentSerials.size()) throw errors::subscriptOutOfRange();
  const std::int16_t line = narrow16(row);
  grdPozycje.setCell(IndexGrdPozycje(line, 1), session.ParentSerials[package]);
  grdPozycje.setCell(IndexGrdPozycje(line, 2), session.ParentDescriptions[package]);
  grdPozycje.setCell(IndexGrdPozycje(line, 3), std::to_string(session.ParentLevels[package]));
  grdPozycje.setCell(IndexGrdPozycje(line, 4),
                     editor_.conversions.NormalizeDecimal(
                         std::string(trimmed(quantityDialog_.txtQuantity.text())), 3));
}

void DlgDodaj::Command2_Click() {
  grdPozycje.setRedraw(false);
  if (grdPozycje.rows() == 2) {
    grdPozycje.clear();
    grdPozycje.setRows(2);
    writePackageHeadings(grdPozycje, boldHeading);
  } else {
    grdPozycje.removeItem(grdPozycje.row());
  }
  grdPozycje.setFocus();
  grdPozycje.setRedraw(true);
  UpdatePackedQuantity();
  SetButtons();
}

// The list of packages is the one that the last Command1 left, and the row's package is found in it
// by its description.
void DlgDodaj::Command3_Click() {
  const int row = grdPozycje.rows() == 2 ? 1 : grdPozycje.row();
  const std::int16_t line = narrow16(row);
  DlgdodajPule& dialog = quantityDialog_;
  dialog.btnDodaj.setCaption("&Подтвердить");
  dialog.setCaption("Изменить упаковку, к которой приписан товар");
  dialog.UpDown1.setMin(1);
  const std::string& quantityText = grdPozycje.cell(IndexGrdPozycje(line, 4));
  const double quantity = editor_.conversions.toDouble(quantityText);
  dialog.UpDown1.setMax(wholeNumber(GetMaxQuantity() + quantity));
  dialog.txtQuantity.setText(editor_.conversions.plainNumber(quantity));
  dialog.cboxPackages.setText(grdPozycje.cell(IndexGrdPozycje(line, 2)));
  dialog.showModal();
  if (dialog.DlgResult == 1) {
    writeAssignment(row);
    grdPozycje.setRow(row);
  }
  UpdatePackedQuantity();
  SetButtons();
}

// An error ends these two without a word, with what they have done so far.

void DlgDodaj::StringToGrid(std::string_view text) { awizo::StringToGrid(grdPozycje, text); }

std::string DlgDodaj::GridToString() const { return awizo::GridToString(grdPozycje); }

}  // namespace awizo
