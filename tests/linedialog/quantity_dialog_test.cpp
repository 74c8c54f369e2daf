#include "linedialog/dlgdodaj_pule.h"
#include "platform/forms/keys.h"
#include "support/test_editor.h"

namespace awizo::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr const char* noNumber = "VIRD|critical|OK|Значение должно быть числовым";
constexpr const char* outOfRange =
    "VIRD|critical|OK|Введено неправильное значение (число должно принадлежать промежутку от 1 до "
    "7).";

/// The dialog with two packages and the limits 1 and 7.
struct QuantityDialog : ::testing::TestWithParam<std::string> {
  TestEditor test{GetParam()};
  DlgdodajPule dialog{test.screen, test.editor.conversions};

  QuantityDialog() {
    dialog.cboxPackages.addRow("Поддон");
    dialog.cboxPackages.addRow("Коробка");
    dialog.cboxPackages.setIndex(0);
    dialog.UpDown1.setMin(1);
    dialog.UpDown1.setMax(7);
    dialog.txtQuantity.setText("3");
  }
  std::string local(std::string text) const {
    return text.replace(text.find(','), 1, test.session.DecimalSeparator);
  }
  void show(const std::function<void()>& act) {
    test.face.onModal([this, act] {
      act();
      if (dialog.shown()) dialog.btnZamknij.userClick();
    });
    dialog.showModal();
  }
  std::vector<std::string> boxes() { return describe(test.face.takeBoxes()); }
  std::string focus() const { return dialog.focus() == nullptr ? "" : dialog.focus()->name(); }
};
INSTANTIATE_TEST_SUITE_P(InBothLocales, QuantityDialog, ::testing::Values("ru_RU", "en_US"));

TEST_P(QuantityDialog, HasItsCaptionsAndLimits) {
  EXPECT_EQ(dialog.caption(), "Добавь товар в упаковку");
  EXPECT_EQ(dialog.Label2.caption(), "Упаковка:");
  EXPECT_EQ(dialog.cboxPackages.caption(), "Упаковка:");
  EXPECT_EQ(dialog.cboxPackages.style(), ListStyle::listOnly);
  EXPECT_EQ(dialog.Label1.caption(), "Количество:");
  EXPECT_EQ(dialog.txtQuantity.caption(), "Количество:");
  EXPECT_EQ(dialog.txtQuantity.limit(), 35);
  EXPECT_EQ(dialog.txtQuantity.alignment(), Alignment::right);
  EXPECT_EQ(dialog.btnDodaj.caption(), "&Добавить");
  EXPECT_EQ(dialog.btnZamknij.caption(), "&Назад");
}

TEST_P(QuantityDialog, AcceptedGivesOneAndClosedZero) {
  show([&] { dialog.btnDodaj.userClick(); });
  EXPECT_EQ(dialog.DlgResult, 1);
  show([&] { dialog.btnZamknij.userClick(); });
  EXPECT_EQ(dialog.DlgResult, 0);
  show([&] { dialog.txtQuantity.userKey(keys::enter); });
  EXPECT_EQ(dialog.DlgResult, 1);
  show([&] { dialog.txtQuantity.userKey(keys::escape); });
  EXPECT_EQ(dialog.DlgResult, 0);
  dialog.DlgResult = 1;
  show([&] { dialog.userClose(); });
  EXPECT_EQ(dialog.DlgResult, 0);
}

TEST_P(QuantityDialog, NeedsAPackage) {
  dialog.cboxPackages.setIndex(-1);
  show([&] {
    dialog.txtQuantity.userType("");
    dialog.btnDodaj.userClick();
    EXPECT_TRUE(dialog.shown());
    EXPECT_EQ(focus(), "cboxPackages");
    EXPECT_THAT(boxes(), ElementsAre("VIRD|critical|OK|В поле 'Упаковка' не указана величина"));
  });
}

TEST_P(QuantityDialog, NeedsAQuantity) {
  show([&] {
    dialog.txtQuantity.userType("");
    EXPECT_THAT(boxes(), IsEmpty()) << "the empty text is no fault as it is typed";
    dialog.btnDodaj.userClick();
    EXPECT_TRUE(dialog.shown());
    EXPECT_EQ(focus(), "txtQuantity");
    EXPECT_THAT(boxes(), ElementsAre(outOfRange));
  });
}

TEST_P(QuantityDialog, WhatIsNoNumberBecomesTheLargestQuantity) {
  show([&] {
    dialog.txtQuantity.userType("3x");
    EXPECT_EQ(dialog.txtQuantity.text(), "7");
    EXPECT_THAT(boxes(), ElementsAre(noNumber));
    EXPECT_EQ(focus(), "txtQuantity");
  });
}

TEST_P(QuantityDialog, TheUserSeesTheLargestQuantityBehindTheBox) {
  show([&] {
    test.face.whileBoxIsOpen([&](const MessageBox&) { EXPECT_EQ(dialog.txtQuantity.text(), "7"); });
    dialog.txtQuantity.userType("8");
  });
  EXPECT_THAT(boxes(), ElementsAre(outOfRange));
}

TEST_P(QuantityDialog, WhatIsOutOfRangeBecomesTheLargestQuantity) {
  for (const char* typed : {"0", "8", "-3", "1e9", "999999999999999999999"}) {
    show([&] {
      dialog.txtQuantity.userType(typed);
      EXPECT_EQ(dialog.txtQuantity.text(), "7") << typed;
      EXPECT_EQ(focus(), "txtQuantity");
    });
    EXPECT_THAT(boxes(), ElementsAre(outOfRange)) << typed;
  }
}

TEST_P(QuantityDialog, AWrongQuantityThatWasNotTypedTakesTheFocus) {
  show([&] {
    dialog.cboxPackages.userFocus();
    dialog.txtQuantity.setText("x");
    EXPECT_EQ(focus(), "txtQuantity");
    dialog.cboxPackages.userFocus();
    dialog.txtQuantity.setText("8");
    EXPECT_EQ(focus(), "txtQuantity");
  });
  EXPECT_THAT(boxes(), ElementsAre(noNumber, outOfRange));
}

/// Grouped thousands are a number, of which a comma becomes a second point.
TEST_P(QuantityDialog, GroupedThousandsAreAnErrorWhereACommaGroupsThem) {
  dialog.UpDown1.setMax(2000);
  const bool comma = test.session.DecimalSeparator == ",";
  const std::string typed = comma ? "1 000,5" : "1,000.5";
  show([&] {
    dialog.txtQuantity.userType(typed);
    EXPECT_EQ(dialog.txtQuantity.text(), typed);
  });
  if (comma)
    EXPECT_THAT(boxes(), IsEmpty());
  else
    EXPECT_THAT(boxes(), ElementsAre("VIRD|critical|OK|Type mismatch"));
}

TEST_P(QuantityDialog, TheLimitsThemselvesAndWhatLiesBetweenPass) {
  for (const std::string& typed : {std::string("1"), local("1,25"), std::string("7")}) {
    show([&] {
      dialog.txtQuantity.userType(typed);
      EXPECT_EQ(dialog.txtQuantity.text(), typed);
    });
  }
  EXPECT_THAT(boxes(), IsEmpty());
}

TEST_P(QuantityDialog, ComparesWithTwoDecimals) {
  show([&] {
    dialog.txtQuantity.userType(local("7,004"));
    EXPECT_THAT(boxes(), IsEmpty());
    dialog.txtQuantity.userType(local("7,006"));
    EXPECT_THAT(boxes(), ElementsAre(outOfRange));
    dialog.txtQuantity.userType(local("0,996"));
    EXPECT_THAT(boxes(), IsEmpty());
  });
}

TEST_P(QuantityDialog, ALargestQuantityThatIsRefusedItselfIsToldFirst) {
  dialog.UpDown1.setMax(0);
  show([&] {
    dialog.txtQuantity.userType("x");
    EXPECT_EQ(dialog.txtQuantity.text(), "0");
  });
  EXPECT_THAT(boxes(), ElementsAre("VIRD|critical|OK|Введено неправильное значение (число должно "
                                   "принадлежать промежутку от 1 до 0).",
                                   noNumber));
}

TEST_P(QuantityDialog, TheSpinButtonsStayWithinTheLimits) {
  show([&] {
    dialog.UpDown1.userSpin(3);
    EXPECT_EQ(dialog.txtQuantity.text(), "6");
    dialog.UpDown1.userSpin(3);
    EXPECT_EQ(dialog.txtQuantity.text(), "7");
    dialog.UpDown1.userSpin(-100);
    EXPECT_EQ(dialog.txtQuantity.text(), "1");
  });
  EXPECT_THAT(boxes(), IsEmpty());
}

TEST_P(QuantityDialog, ALongTextIsCutBeforeItIsChecked) {
  show([&] { dialog.txtQuantity.userType(std::string(34, ' ') + "5x"); });
  EXPECT_EQ(dialog.txtQuantity.text(), std::string(34, ' ') + "5");
  EXPECT_THAT(boxes(), IsEmpty());
}

}  // namespace
}  // namespace awizo::test
