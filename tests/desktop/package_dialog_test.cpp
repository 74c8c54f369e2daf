#include <QApplication>
#include <QComboBox>
#include <QLineEdit>

#include "control_on_desktop.h"
#include "tables/columns/columns.h"

namespace awizo::test {
namespace {

class PackageDialogOnDesktop : public testing::Test, public ControlOnDesktop {
 protected:
  DlgSzczegoly& package = control.dlgSzczegoly;

  void addPackage(const std::function<void()>& act) {
    then(act);
    click(face(form.btnDodajOpak));
    settle();
  }
};

TEST_F(PackageDialogOnDesktop, TheFirstPackageIsEnteredByTheKeyboardAlone) {
  loadCatalogues();
  addPackage([this] {
    EXPECT_EQ(desktop::toText(dialog(package).windowTitle()), "Добавить упаковку");
    EXPECT_TRUE(keysGoTo(package.cboxPackageType));
    EXPECT_EQ(shownText(face(package.cboxPackageType)), "Паллета");
    EXPECT_FALSE(widget(package.cboxParentPackage)->isEnabled());
    EXPECT_EQ(shownText(face(package.lblLevelValue)), "1");
    EXPECT_EQ(shownText(face(package.lblIDLowValue)), "1");
    press(Qt::Key_Down);
    press(Qt::Key_Tab);
    type("Коробка с сыром");
    press(Qt::Key_Tab);
    EXPECT_TRUE(keysGoTo(package.txtPackageWeight));
    type("2,5");
    tabTo(package.txtSerialNumberN);
    type("000000000000000000");
    press(Qt::Key_Tab);
    press(Qt::Key_Down);
    press(Qt::Key_Return);
  });
  EXPECT_EQ(package.DialogResult, 1);
  EXPECT_EQ(form.grdOpakowania.cell(1, GRD_OPAK_DESC), "Коробка с сыром");
  EXPECT_EQ(form.grdOpakowania.cell(1, GRD_OPAK_TYPE), "201");
  EXPECT_EQ(form.grdOpakowania.cell(1, GRD_OPAK_WEIGHT), "2,500");
}

TEST_F(PackageDialogOnDesktop, TheParentsLevelShowsAsItIsPicked) {
  fillDocument();
  addPackage([this] {
    EXPECT_TRUE(widget(package.cboxParentPackage)->isEnabled());
    EXPECT_EQ(shownText(face(package.lblLevelValue)), "");
    tabTo(package.cboxParentPackage);
    for (int i = 0; i < 3; ++i) press(Qt::Key_Down);
    EXPECT_EQ(package.cboxParentPackage.text(), "Коробка");
    EXPECT_EQ(shownText(face(package.lblLevelValue)), "3");
    press(Qt::Key_Escape);
  });
  EXPECT_EQ(package.DialogResult, 0);
}

TEST_F(PackageDialogOnDesktop, TheDeliveryPlaceFollowsItsNumberAndBack) {
  loadCatalogues();
  addPackage([this] {
    ASSERT_GT(package.cboxILNLokalizacji.count(), 1);
    click(qobject_cast<QComboBox*>(widget(package.cboxILNLokalizacji))->lineEdit());
    press(Qt::Key_Down);
    EXPECT_EQ(package.cboxILNLokalizacji.index(), 0);
    EXPECT_EQ(shownText(face(package.cboxLokalizacja)), package.cboxLokalizacja.rows()[0]);
    press(Qt::Key_Tab);
    press(Qt::Key_Down);
    EXPECT_EQ(shownText(face(package.cboxILNLokalizacji)), package.cboxILNLokalizacji.rows()[1]);
    press(Qt::Key_Escape);
  });
}

TEST_F(PackageDialogOnDesktop, ARefusalPutsTheFocusOnTheField) {
  std::string box;
  addPackage([&] {
    answerNext("ОК", &box);
    press(Qt::Key_Return);
    EXPECT_TRUE(dialog(package).isVisible());
    EXPECT_TRUE(keysGoTo(package.txtPackageDesc));
    typeOver(face(package.txtPackageDesc), "П");
    typeOver(face(package.txtPackageWeight), "x");
    answerNext("ОК");
    press(Qt::Key_Return);
    EXPECT_TRUE(keysGoTo(package.txtPackageWeight));
    press(Qt::Key_Escape);
  });
  EXPECT_NE(box.find("critical|"), std::string::npos) << box;
}

TEST_F(PackageDialogOnDesktop, AMeasureIsPutIntoFormAsItsFieldIsLeft) {
  addPackage([this] {
    typeOver(face(package.txtPackageLength), "1");
    click(face(package.txtPackageWidth));
    EXPECT_EQ(shownText(face(package.txtPackageLength)), package.txtPackageLength.text());
    EXPECT_EQ(package.txtPackageLength.text(), "1,000");
    press(Qt::Key_Escape);
  });
}

TEST_F(PackageDialogOnDesktop, TheMainFormTakesNoInputMeanwhile) {
  addPackage([this] {
    click(face(form.btnDodaj));
    EXPECT_FALSE(control.dlgDodaj.shown());
    EXPECT_FALSE(mainWindow.isEnabled());
    press(Qt::Key_Escape);
  });
  EXPECT_TRUE(mainWindow.isEnabled());
}

}  // namespace
}  // namespace awizo::test
