// The section of packages with a small dialog of its own, on a dialog that nothing has loaded.

#include "line_dialog.h"

namespace awizo::test {
namespace {

using ::testing::ElementsAre;

struct LinePackagesAlone : ::testing::Test {
  LineDialog test;
  DlgDodaj& dialog = test.dialog;
  DlgdodajPule small{test.screen, test.editor.conversions};
  LinePackages packages{test.editor, dialog, small};

  LinePackagesAlone() { test.offer({{"2", "Поддон"}, {"5", "Коробка", 2}}); }

  void take(int package, const std::string& quantity) {
    test.face.onModal([this, package, quantity] {
      small.cboxPackages.userChoose(package);
      small.txtQuantity.userType(quantity);
      small.btnDodaj.userClick();
    });
  }
  std::vector<std::string> row(int number) const {
    return TestEditor::row(dialog.grdPozycje, number);
  }
};

TEST_F(LinePackagesAlone, SetsUpItsTable) {
  packages.setUpTable();
  EXPECT_THAT(row(0),
              ElementsAre("№ п.п", "ID упаковки", "Описание упаковки", "Уровень", "Количество"));
  EXPECT_EQ(dialog.grdPozycje.columnWidth(1), 0);
  EXPECT_EQ(dialog.grdPozycje.columnWidth(2), 4605);
}

TEST_F(LinePackagesAlone, AddsChangesAndTakesOut) {
  dialog.txtIloscPotw.setText("7");
  take(1, "3");
  packages.Command1_Click();
  EXPECT_THAT(row(1), ElementsAre("", "5", "Коробка", "2", "3,000"));
  EXPECT_EQ(dialog.lblPackedQuantityValue.caption(), "3,000");
  EXPECT_EQ(packages.GetMaxQuantity(), 4.0);
  take(0, "7");
  packages.Command3_Click();
  EXPECT_THAT(row(1), ElementsAre("", "2", "Поддон", "1", "7,000"));
  EXPECT_FALSE(dialog.Command1.enabled());
  EXPECT_TRUE(dialog.Command3.enabled());
  packages.Command2_Click();
  EXPECT_THAT(row(1), ElementsAre("", "", "", "", ""));
  EXPECT_EQ(dialog.lblPackedQuantityValue.caption(), "0,000");
}

TEST_F(LinePackagesAlone, WithoutAPackageOffersAnEmptyList) {
  test.offer({});
  dialog.txtIloscPotw.setText("7");
  test.face.onModal([this] {
    EXPECT_EQ(small.cboxPackages.count(), 0);
    small.btnZamknij.userClick();
  });
  packages.Command1_Click();
  EXPECT_TRUE(test.face.boxes().empty());
}

TEST_F(LinePackagesAlone, TheLimitIsAWholeNumberOfThirtyTwoBits) {
  const auto limitOf = [this](const std::string& despatched, const std::string& packed) {
    dialog.txtIloscPotw.setText(despatched);
    dialog.lblPackedQuantityValue.setCaption(packed);
    test.face.onModal([this] { small.btnZamknij.userClick(); });
    packages.Command1_Click();
    return std::int64_t{small.UpDown1.max()};
  };
  EXPECT_EQ(limitOf("1", "-2147483646"), 2147483647);
  EXPECT_EQ(limitOf("0", "2147483648"), -2147483648);
}

TEST_F(LinePackagesAlone, TellsWhatIsUnpacked) {
  dialog.txtIloscPotw.setText("7");
  dialog.grdPozycje.setCell(1, 4, "7,000");
  packages.tellWhatIsUnpacked();
  EXPECT_TRUE(test.face.boxes().empty());
  dialog.grdPozycje.setCell(1, 4, "6,990");
  packages.tellWhatIsUnpacked();
  EXPECT_THAT(test.takeBoxes(),
              ElementsAre("VIRDDesAdv|none|OK|Отгруженный товар упакован не полностью"));
}

}  // namespace
}  // namespace awizo::test
