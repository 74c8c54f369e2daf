#include "line_dialog.h"

namespace awizo::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr const char* notAllPacked = "VIRDDesAdv|none|OK|Отгруженный товар упакован не полностью";

struct ClosingTheLineDialog : ::testing::Test {
  LineDialog test;
  DlgDodaj& dialog = test.dialog;
  Button& add = dialog.Command1;

  void typeGoodLine() {
    if (dialog.cboxEANProd.visible()) {
      dialog.cboxEANProd.userType("4607000000116");
    } else {
      dialog.txtlEANProdWart.userType("4607000000116");
    }
    dialog.txtIloscPotw.userType("5");
  }
};

TEST_F(ClosingTheLineDialog, AcceptedGivesOneAndHides) {
  test.load();
  test.show([&] {
    typeGoodLine();
    dialog.btnDodaj.userClick();
    EXPECT_FALSE(dialog.shown());
  });
  EXPECT_EQ(dialog.DlgResult, 1);
  EXPECT_THAT(test.face.boxes(), IsEmpty());
}

TEST_F(ClosingTheLineDialog, ARefusedLineLeavesItOpen) {
  test.load();
  dialog.DlgResult = 0;
  test.show([&] {
    dialog.btnDodaj.userClick();
    EXPECT_TRUE(dialog.shown());
    EXPECT_EQ(dialog.DlgResult, 0);
  });
}

TEST_F(ClosingTheLineDialog, ClosedGivesZeroAndKeepsWhatWasTyped) {
  test.load();
  dialog.DlgResult = 1;
  test.show([&] {
    typeGoodLine();
    dialog.btnZamknij.userClick();
    EXPECT_FALSE(dialog.shown());
  });
  EXPECT_EQ(dialog.DlgResult, 0);
  EXPECT_EQ(dialog.txtlEANProdWart.text(), "4607000000116");
}

TEST_F(ClosingTheLineDialog, TheFramesCloseAndEscapeClose) {
  test.load();
  dialog.DlgResult = 1;
  test.show([&] { dialog.userClose(); });
  EXPECT_EQ(dialog.DlgResult, 0);
  dialog.DlgResult = 1;
  test.show([&] { dialog.txtKodKup.userKey(27); });
  EXPECT_EQ(dialog.DlgResult, 0);
}

TEST_F(ClosingTheLineDialog, EnterAccepts) {
  test.load();
  test.show([&] {
    typeGoodLine();
    dialog.txtIloscPotw.userKey(13);
    EXPECT_FALSE(dialog.shown());
  });
  EXPECT_EQ(dialog.DlgResult, 1);
  EXPECT_EQ(dialog.txtIloscPotw.text(), "5,000") << "tidied though it wasn't left";
}

TEST_F(ClosingTheLineDialog, TheFocusGoesToTheListOfNames) {
  test.loadProducts({{"4601", "Чай"}});
  test.show([&] {
    typeGoodLine();
    dialog.btnDodaj.userClick();
  });
  EXPECT_EQ(test.focus(), "cboxNazwaProd");
  test.show([&] {
    dialog.txtKodKup.userFocus();
    dialog.btnZamknij.userClick();
  });
  EXPECT_EQ(test.focus(), "cboxNazwaProd");
}

TEST_F(ClosingTheLineDialog, WithoutACatalogueTheFocusStays) {
  test.load();
  test.show([&] { dialog.btnZamknij.userClick(); });
  EXPECT_EQ(test.focus(), "btnZamknij");
}

// The list of countries grows with those used.

TEST_F(ClosingTheLineDialog, ACountryThatTheListLacksIsAddedToIt) {
  test.load();
  test.show([&] {
    typeGoodLine();
    dialog.comboCountry.userType("au");
    dialog.btnDodaj.userClick();
  });
  EXPECT_EQ(dialog.comboCountry.count(), 11);
  EXPECT_EQ(dialog.comboCountry.rows().back(), "(AU)Австралия");
  EXPECT_EQ(dialog.comboCountry.text(), "AU");
  EXPECT_EQ(dialog.comboCountry.index(), -1);

  test.show([&] {
    dialog.comboCountry.userType("AU");
    dialog.btnDodaj.userClick();
  });
  EXPECT_EQ(dialog.comboCountry.count(), 11) << "it is there now";
}

TEST_F(ClosingTheLineDialog, TheTableOfCountriesHasItsOwnNames) {
  test.load();
  test.show([&] {
    typeGoodLine();
    dialog.comboCountry.userChoose(1);
    EXPECT_EQ(dialog.comboCountry.text(), "(BY)Белоруссия");
    dialog.btnDodaj.userClick();
  });
  EXPECT_EQ(dialog.comboCountry.text(), "BY");
  EXPECT_EQ(dialog.comboCountry.rows().back(), "(BY)Беларусь");
}

TEST_F(ClosingTheLineDialog, ACountryOfTheListAddsNothing) {
  test.load();
  for (const char* country : {"ru", "(PL)Польша", ""}) {
    test.show([&] {
      typeGoodLine();
      dialog.comboCountry.userType(country);
      dialog.btnDodaj.userClick();
    });
    EXPECT_EQ(dialog.comboCountry.count(), 10) << country;
  }
}

TEST_F(ClosingTheLineDialog, TheEntryIsComparedBlindToCase) {
  test.load();
  dialog.comboCountry.addRow("(au)АВСТРАЛИЯ");
  test.show([&] {
    typeGoodLine();
    dialog.comboCountry.userType("AU");
    dialog.btnDodaj.userClick();
  });
  EXPECT_EQ(dialog.comboCountry.count(), 11);
}

// The notice about what isn't packed.

struct ClosingALineInPackages : ClosingTheLineDialog {
  ClosingALineInPackages() {
    test.load();
    test.offer({{"2", "Коробка"}});
    dialog.lblPackedQuantityValue.setCaption("0,000");
  }
};

TEST_F(ClosingALineInPackages, TellsThatNotAllIsPacked) {
  test.show([&] {
    typeGoodLine();
    test.assign(0, "4");
    dialog.btnDodaj.userClick();
    EXPECT_FALSE(dialog.shown()) << "it is a notice only";
  });
  EXPECT_THAT(test.takeBoxes(), ElementsAre(notAllPacked));
  EXPECT_EQ(dialog.DlgResult, 1);
}

TEST_F(ClosingALineInPackages, TellsItWhenAllElseButHidingIsDone) {
  dialog.cboxNazwaProd.setVisible(true);
  test.show([&] {
    typeGoodLine();
    dialog.comboCountry.userType("AU");
    test.face.whileBoxIsOpen([&](const MessageBox&) {
      EXPECT_TRUE(dialog.shown());
      EXPECT_EQ(dialog.DlgResult, 1);
      EXPECT_EQ(dialog.comboCountry.count(), 11);
      EXPECT_EQ(test.focus(), "cboxNazwaProd");
    });
    dialog.btnDodaj.userClick();
  });
  EXPECT_THAT(test.takeBoxes(), ElementsAre(notAllPacked));
}

TEST_F(ClosingALineInPackages, TellsItOfALineInNoPackageToo) {
  test.show([&] {
    typeGoodLine();
    dialog.btnDodaj.userClick();
  });
  EXPECT_THAT(test.takeBoxes(), ElementsAre(notAllPacked));
}

TEST_F(ClosingALineInPackages, SaysNothingWhenAllIsPacked) {
  test.show([&] {
    typeGoodLine();
    test.assign(0, "2");
    test.assign(0, "3");
    dialog.btnDodaj.userClick();
  });
  EXPECT_THAT(test.takeBoxes(), IsEmpty());
}

TEST_F(ClosingALineInPackages, SaysNothingWhereNothingCanBePacked) {
  test.offer({});
  test.show([&] {
    typeGoodLine();
    dialog.btnDodaj.userClick();
  });
  EXPECT_THAT(test.takeBoxes(), IsEmpty());
}

TEST_F(ClosingALineInPackages, AddsQuantitiesWithTwoDecimals) {
  test.show([&] {
    typeGoodLine();
    dialog.txtIloscPotw.userType("1,004");
    // Packed entirely, but the cell counts as 1,00.
    test.assign(0, "1,004");
    EXPECT_EQ(dialog.grdPozycje.cell(1, 4), "1,004");
    dialog.btnDodaj.userClick();
  });
  EXPECT_THAT(test.takeBoxes(), ElementsAre(notAllPacked));
}

TEST_F(ClosingALineInPackages, EmptyQuantitiesDontCount) {
  dialog.StringToGrid("2@Коробка@1@5,000$2@Коробка@1");
  dialog.lblPackedQuantityValue.setCaption("5,000");
  test.show([&] {
    typeGoodLine();
    dialog.btnDodaj.userClick();
  });
  EXPECT_THAT(test.takeBoxes(), IsEmpty());
}

TEST_F(ClosingALineInPackages, AQuantityThatIsNoNumberEndsTheClick) {
  dialog.StringToGrid("2@Коробка@1@много");
  dialog.lblPackedQuantityValue.setCaption("1,000");
  test.show([&] {
    typeGoodLine();
    dialog.btnDodaj.userClick();
    EXPECT_TRUE(dialog.shown());
    EXPECT_EQ(dialog.DlgResult, 1) << "what was done stays";
  });
  EXPECT_THAT(test.takeBoxes(), ElementsAre("VIRD|critical|OK|Type mismatch"));
}

}  // namespace
}  // namespace awizo::test
