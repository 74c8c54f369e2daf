#include <QApplication>
#include <QLabel>

#include "desk/scanner_switch.h"
#include "desktop_program/program_test.h"
#include "hosts/desktop/layouts/form_dialog.h"
#include "tables/columns/columns.h"

namespace awizo::test {
namespace {

/// A scanner that types as a keyboard does.
class ScannerTest : public ProgramTest {
 protected:
  ~ScannerTest() override { close(); }

  static desktop::Face& dialogFace(const Control& control) {
    return static_cast<desktop::FormDialog*>(QApplication::activeModalWidget())
        ->faces()
        .face(control);
  }
  void addBox() {
    then([this] {
      DlgSzczegoly& package = control().dlgSzczegoly;
      package.txtPackageDesc.userType("Короб 1");
      package.cboxILNLokalizacji.userType("9520002000026");
      package.txtSerialNumberN.userType("106141412345678908");
      package.btnDodaj.userClick();
    });
    form().btnDodajOpak.userClick();
  }
  void scan(const QString& code) {
    tabTo(form().grdPozycje);
    type(code);
    press(Qt::Key_Return);
  }
  QAction* entry(const std::string& words) {
    for (QAction* action : window().findChildren<QAction*>()) {
      if (action->text().toStdString() == words) return action;
    }
    ADD_FAILURE() << "no entry " << words;
    return nullptr;
  }
  std::string strip() { return shownText(window().findChild<QLabel*>("lineStrip")); }
  std::string packed(int row) { return form().grdPozycje.cell(row, GRD_POZ_PACKED_QTY); }
};

TEST_F(ScannerTest, TheNumberOfAPackageComesWithoutTheScannersMarks) {
  open(offLineOptions());
  DlgSzczegoly& dialog = control().dlgSzczegoly;
  then([&] {
    for (const char* scanned : {"(00)395200010000000011", "]C100395200010000000011",
                                "00395200010000000011", "395200010000000011"}) {
      const desktop::Face& field = dialogFace(dialog.txtSerialNumberN);
      std::string seen;
      const int observation = dialog.txtSerialNumberN.observers.add(
          [&](const Change&) { seen += dialog.txtSerialNumberN.text().substr(0, 1); });
      typeOver(field, scanned);
      dialog.txtSerialNumberN.observers.remove(observation);
      EXPECT_EQ(dialog.txtSerialNumberN.text(), "395200010000000011") << scanned;
      EXPECT_EQ(shownText(field), "395200010000000011") << scanned;
      EXPECT_EQ(seen.find_first_of("(]"), seen.npos) << scanned;
    }
    press(Qt::Key_A, Qt::ControlModifier);
    paste("(00)395200010000000028");
    EXPECT_EQ(dialog.txtSerialNumberN.text(), "395200010000000028");
    dialog.userClose();
  });
  form().btnDodajOpak.userClick();
}

TEST_F(ScannerTest, AnEanComesWithoutThemTooAndANameKeepsItsBrackets) {
  open(offLineOptions());
  DlgDodaj& dialog = control().dlgDodaj;
  then([&] {
    typeOver(dialogFace(dialog.txtlEANProdWart), "]E04607000000116");
    EXPECT_EQ(dialog.txtlEANProdWart.text(), "4607000000116");
    typeOver(dialogFace(dialog.txtlEANProdWart), "(01)04607000000123");
    EXPECT_EQ(dialog.txtlEANProdWart.text(), "4607000000123");
    typeOver(dialogFace(dialog.txtlEANProdWart), "");
    paste("(01)04607000000130");
    EXPECT_EQ(dialog.txtlEANProdWart.text(), "4607000000130");
    typeOver(dialogFace(dialog.txtlEANProdWart), "(12");
    press(Qt::Key_Tab);
    EXPECT_EQ(dialog.txtlEANProdWart.text(), "(12") << "what is no mark isn't lost";
    typeOver(dialogFace(dialog.txtNazwaProdWart), "(00) краска ]C1");
    EXPECT_EQ(dialog.txtNazwaProdWart.text(), "(00) краска ]C1");
    dialog.userClose();
  });
  form().btnDodaj.userClick();
}

TEST_F(ScannerTest, AScannedEanPutsAUnitInOnlyWhileTheSwitchIsOn) {
  open(offLineOptions());
  addBox();
  addLine("Чай", "2");
  scan("4607000000116");
  EXPECT_EQ(packed(1), "0,000");
  QAction* packs = entry("Сканер кладё&т в упаковку");
  ASSERT_NE(packs, nullptr);
  EXPECT_FALSE(packs->isChecked());
  packs->trigger();
  EXPECT_TRUE(packs->isChecked());
  scan("4607000000116");
  EXPECT_EQ(packed(1), "1,000");
  settle();
  EXPECT_EQ(strip(), "Короб 1 ← Строка 1 (Чай), упаковано 1 из 2");
  scan("4607000000116");
  EXPECT_EQ(packed(1), "2,000");
  scan("4607000000116");
  settle();
  EXPECT_EQ(packed(1), "2,000");
  EXPECT_EQ(strip(), "Строка 1 (Чай): упаковано 2 из 2");
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
  press(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(packed(1), "1,000");
  packs->trigger();
  scan("4607000000116");
  EXPECT_EQ(packed(1), "1,000");
}

TEST_F(ScannerTest, ACodeScannedOnAButtonPressesItNot) {
  open(offLineOptions());
  addLine("Чай", "2");
  addLine("Кофе", "2");
  tabTo(form().btnUsun);
  type("4607000000116");
  press(Qt::Key_Return);
  EXPECT_EQ(control().editor.session.LineCount, 2);
  EXPECT_EQ(form().focus(), &form().grdPozycje) << "it leads to the line";
  tabTo(form().btnUsun);
  press(Qt::Key_Return);
  EXPECT_EQ(control().editor.session.LineCount, 1) << "Enter alone presses";
}

TEST_F(ScannerTest, TheSwitchIsKeptForTheNextStart) {
  open(offLineOptions());
  entry("Сканер кладё&т в упаковку")->trigger();
  close();
  open(offLineOptions());
  EXPECT_TRUE(entry("Сканер кладё&т в упаковку")->isChecked());
  EXPECT_TRUE(widget().scannerSwitch().isOn());
}

}  // namespace
}  // namespace awizo::test
