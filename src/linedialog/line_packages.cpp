#include "linedialog/line_packages.h"

#include <cmath>

#include "linedialog/captions.h"
#include "linedialog/dlg_dodaj.h"
#include "platform/text.h"
#include "tables/columns/columns.h"
#include "tables/package_references.h"
#include "tables/row.h"

namespace awizo {
namespace {

constexpr CellLook boldHeading{white, Alignment::centre, true, false};

/// Half goes to the even neighbour, as the floating unit rounds.
std::int32_t wholeNumber(double value) {
  const double rounded = std::nearbyint(value);
  if (!(rounded >= -2147483648.0 && rounded <= 2147483647.0)) throw errors::overflow();
  return static_cast<std::int32_t>(rounded);
}

}  // namespace

void LinePackages::setUpTable() {
  setUpColumns(dialog_.grdPozycje, packageOfLineColumns);
  writePackageHeadings(dialog_.grdPozycje, boldHeading);
}

double LinePackages::GetMaxQuantity() {
  DebugLog& log = work_.session.log;
  log.trace("GetMaxQuantity lblPackedQuantityValue = ", dialog_.lblPackedQuantityValue.caption());
  log.trace("GetMaxQuantity txtIloscPotw = ", dialog_.txtIloscPotw.text());
  const Conversions& conversions = work_.conversions;
  return conversions.MyDouble(trimmed(dialog_.txtIloscPotw.text())) -
         conversions.MyDouble(dialog_.lblPackedQuantityValue.caption());
}

void LinePackages::UpdatePackedQuantity() {
  const Conversions& conversions = work_.conversions;
  double sum = 0;
  for (int row = 1; row < dialog_.grdPozycje.rows(); ++row) {
    sum += conversions.MyDouble(dialog_.grdPozycje.cell(row, GRD_PACKAGES_QUANTITY));
  }
  dialog_.lblPackedQuantityValue.setCaption(
      conversions.NormalizeDecimal(conversions.plainNumber(sum), 3));
}

/// The highest index of the offered packages' lists; the packages are the elements below it.
int LinePackages::packageBound() const {
  return static_cast<int>(work_.session.ParentSerials.size()) - 1;
}

/// A line that lies in packages entirely can't get another one, but its assignments can change: so
/// the last rule overrules the first for Command3.
void LinePackages::SetButtons() {
  DebugLog& log = work_.session.log;
  const Conversions& conversions = work_.conversions;
  const double k = GetMaxQuantity();
  const bool hasPackages = packageBound() >= 1;
  const bool canAdd = hasPackages && k > 0;
  dialog_.Command1.setEnabled(canAdd);
  dialog_.Command3.setEnabled(canAdd);
  log.trace("SetButtons k = ", conversions.plainNumber(k));
  const double x = conversions.MyDouble(trimmed(dialog_.txtIloscPotw.text()));
  const bool canChange = hasPackages && x != k;
  dialog_.Command2.setEnabled(canChange);
  dialog_.Command3.setEnabled(canChange);
  log.trace("SetButtons x = ", conversions.plainNumber(x));
}

void LinePackages::Command1_Click() {
  DlgdodajPule& small = quantityDialog_;
  small.txtQuantity.setText("");
  small.setCaption("Добавь товар в упаковку");
  small.btnDodaj.setCaption("&Добавить");
  small.cboxPackages.clear();
  for (int i = 0; i < packageBound(); ++i) {
    small.cboxPackages.addRow(work_.session.ParentDescriptions[static_cast<std::size_t>(i)]);
  }
  if (packageBound() > 0) small.cboxPackages.setIndex(0);
  const double most = GetMaxQuantity();
  small.UpDown1.setMin(1);
  small.UpDown1.setMax(wholeNumber(most));
  small.txtQuantity.setText(
      work_.conversions.NormalizeDecimal(work_.conversions.plainNumber(most), 0));
  small.showModal();
  if (small.DlgResult == 1) addAssignment();
  dialog_.grdPozycje.setFocus();
}

void LinePackages::addAssignment() {
  Table& table = dialog_.grdPozycje;
  table.setRedraw(false);
  int row = 1;
  if (table.rows() != 2 || !Row(table, 1).cell(GRD_PACKAGES_SERIAL).empty()) {
    row = table.rows();
    table.addItem(std::to_string(row));
  }
  writeAssignment(row);
  table.setRow(row);
  table.setRedraw(true);
  UpdatePackedQuantity();
  SetButtons();
}

void LinePackages::writeAssignment(int row) {
  const SessionState& session = work_.session;
  const auto package = static_cast<std::size_t>(quantityDialog_.cboxPackages.index());
  if (package >= session.ParentSerials.size()) throw errors::subscriptOutOfRange();
  const Row assignment(dialog_.grdPozycje, row);
  assignment.set(GRD_PACKAGES_SERIAL, session.ParentSerials[package]);
  assignment.set(GRD_PACKAGES_DESC, session.ParentDescriptions[package]);
  assignment.set(GRD_PACKAGES_LEVEL, std::to_string(session.ParentLevels[package]));
  assignment.set(GRD_PACKAGES_QUANTITY, work_.conversions.NormalizeDecimal(
                                            trimmed(quantityDialog_.txtQuantity.text()), 3));
}

void LinePackages::Command2_Click() {
  Table& table = dialog_.grdPozycje;
  table.setRedraw(false);
  if (table.rows() == 2) {
    table.clear();
    table.setRows(2);
    writePackageHeadings(table, boldHeading);
  } else {
    table.removeItem(table.row());
  }
  table.setFocus();
  table.setRedraw(true);
  UpdatePackedQuantity();
  SetButtons();
}

/// The list of packages is the one that the last Command1 left, and the row's package is found in
/// it by its description.
void LinePackages::Command3_Click() {
  Table& table = dialog_.grdPozycje;
  const int row = table.rows() == 2 ? 1 : table.row();
  const Row assignment(table, row);
  DlgdodajPule& small = quantityDialog_;
  small.btnDodaj.setCaption(captions::confirm);
  small.setCaption("Изменить упаковку, к которой приписан товар");
  small.UpDown1.setMin(1);
  const double quantity = work_.conversions.toDouble(assignment.cell(GRD_PACKAGES_QUANTITY));
  small.UpDown1.setMax(wholeNumber(GetMaxQuantity() + quantity));
  small.txtQuantity.setText(work_.conversions.plainNumber(quantity));
  small.cboxPackages.setText(assignment.cell(GRD_PACKAGES_DESC));
  small.showModal();
  if (small.DlgResult == 1) {
    writeAssignment(row);
    table.setRow(row);
  }
  UpdatePackedQuantity();
  SetButtons();
}

void LinePackages::tellWhatIsUnpacked() {
  const Conversions& conversions = work_.conversions;
  double packed = 0;
  for (int row = 1; row < dialog_.grdPozycje.rows(); ++row) {
    const std::string& cell = dialog_.grdPozycje.cell(row, GRD_PACKAGES_QUANTITY);
    if (cell.empty()) continue;
    packed += conversions.toDouble(conversions.NormalizeDecimal(Conversions::CommaToDot(cell), 2));
  }
  if (conversions.MyDouble(dialog_.txtIloscPotw.text()) > packed) {
    work_.screen().messageBox({"Отгруженный товар упакован не полностью", ""});
  }
}

}  // namespace awizo
