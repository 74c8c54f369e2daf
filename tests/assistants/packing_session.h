#pragma once

#include <string>
#include <vector>

#include "assistants/assisted_session.h"
#include "assistants/distributing.h"

namespace awizo::test {

/// A user with lines and two boxes.
struct PackingSession : AssistedSession {
  using AssistedSession::AssistedSession;

  std::string quantity(const std::string& withPoint) const {
    return control.editor.conversions.withLocalSeparator(withPoint);
  }
  void addLine(const std::string& name, const std::string& despatched, int unit = 0) {
    screen.onModal([&] {
      DlgDodaj& line = control.dlgDodaj;
      line.txtlEANProdWart.userType("4607000000116");
      line.txtNazwaProdWart.userType(name);
      line.txtIloscPotw.userType(quantity(despatched));
      line.cboxJednostkaMiary.userChoose(unit);
      line.btnDodaj.userClick();
    });
    form.btnDodaj.userClick();
  }
  void addBox(const std::string& description) {
    screen.onModal([&] {
      DlgSzczegoly& package = control.dlgSzczegoly;
      package.txtPackageDesc.userType(description);
      package.cboxILNLokalizacji.userType("9520002000026");
      package.txtSerialNumberN.userType("106141412345678908");
      package.btnDodaj.userClick();
    });
    form.btnDodajOpak.userClick();
  }
  void addLinesAndBoxes() {
    constexpr int kilograms = 1;
    addBox("Короб 1");
    addBox("Короб 2");
    addLine("Чай", "8.25");
    addLine("Кофе", "12.5");
    addLine("Соль", "0.5");
    addLine("Рис", "2.5", kilograms);
  }

  /// Puts parts of a line into packages by hand.
  void packByHand(const LinePlan& plan, const DistributionChoice& choice) {
    screen.onModal([&] {
      for (const PlannedPart& part : plan.parts) {
        screen.onModal([&] {
          DlgdodajPule& dialog = control.dlgdodajPule;
          dialog.cboxPackages.userChoose(choice.packages[part.package] - 1);
          dialog.txtQuantity.userType(
              control.editor.conversions.plainNumber(static_cast<double>(part.quantity) / 1000));
          dialog.btnDodaj.userClick();
        });
        control.dlgDodaj.Command1.userClick();
      }
      control.dlgDodaj.btnDodaj.userClick();
    });
    form.grdPozycje.userRow(plan.row);
    form.btnEdytuj.userClick();
  }

  AssistantReport run(const DistributionChoice& choice, const GoOn& goOn = {}) {
    return distribute(assistance, choice, plansOf(control.editor, choice), goOn);
  }
  std::string references(int row) const { return form.grdPozycje.cell(row, GRD_POZ_PACK_REFS); }
  std::string packed(int row) const { return form.grdPozycje.cell(row, GRD_POZ_PACKED_QTY); }
};

}  // namespace awizo::test
