#pragma once

#include <string>
#include <vector>

#include "line_dialog.h"

namespace awizo::test {

/// A line of this quantity in a document with two packages.
struct PackedLine : ::testing::TestWithParam<std::string> {
  LineDialog test{GetParam()};
  DlgDodaj& dialog = test.dialog;
  DlgdodajPule& small = test.quantityDialog;
  Table& table = dialog.grdPozycje;

  PackedLine() {
    test.load();
    test.offer({{"2", "Поддон"}, {"5", "Коробка", 2}});
    dialog.lblPackedQuantityValue.setCaption(local("0,000"));
  }
  std::string local(const std::string& text) const { return localNumber(test, text); }
  std::string range(const std::string& from, const std::string& to) const {
    return "VIRD|critical|OK|Введено неправильное значение (число должно принадлежать промежутку "
           "от " +
           from + " до " + to + ").";
  }
  void despatch(const std::string& quantity) { dialog.txtIloscPotw.setText(local(quantity)); }
  /// Which of the three buttons can be pressed.
  std::string enabledButtons() const {
    std::string captions;
    for (const Button* button : {&dialog.Command1, &dialog.Command2, &dialog.Command3}) {
      if (button->enabled()) captions += button->caption();
    }
    return captions;
  }
  /// Serial, description, level and quantity of each row.
  std::vector<std::string> rows() const {
    std::vector<std::string> all;
    for (int row = 1; row < table.rows(); ++row) {
      all.push_back(table.cell(row, 1) + " " + table.cell(row, 2) + " " + table.cell(row, 3) + " " +
                    table.cell(row, 4));
    }
    return all;
  }
  std::string row(const std::string& text) const { return local(text); }
};
}  // namespace awizo::test
