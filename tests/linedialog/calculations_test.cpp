#include "line_dialog.h"

namespace awizo::test {
namespace {

using ::testing::IsEmpty;

struct LineCalculations : ::testing::TestWithParam<std::string> {
  LineDialog test{GetParam()};
  DlgDodaj& dialog = test.dialog;

  LineCalculations() { test.load(); }
  std::string local(const std::string& text) const { return localNumber(test, text); }
};
INSTANTIATE_TEST_SUITE_P(InBothLocales, LineCalculations, ::testing::Values("ru_RU", "en_US"));

// Category and rate.

TEST_P(LineCalculations, CategoryEBringsTheRateToZero) {
  test.show([&] {
    dialog.cboxStawkaVAT.userChoose(2);
    EXPECT_EQ(dialog.cboxKodVAT.text(), "S");
    dialog.cboxKodVAT.userChoose(1);
    EXPECT_EQ(dialog.cboxStawkaVAT.text(), "0");
    EXPECT_EQ(dialog.cboxKodVAT.text(), "E");
  });
}

TEST_P(LineCalculations, ARateAboveZeroBringsTheCategoryToS) {
  test.show([&] {
    dialog.cboxKodVAT.userChoose(1);
    dialog.cboxStawkaVAT.userChoose(1);
    EXPECT_EQ(dialog.cboxKodVAT.text(), "S");
    EXPECT_EQ(dialog.cboxStawkaVAT.text(), "10");
  });
}

TEST_P(LineCalculations, RateZeroAndCategorySMayStandTogether) {
  test.show([&] {
    dialog.cboxKodVAT.userChoose(0);
    EXPECT_EQ(dialog.cboxStawkaVAT.index(), -1);
    dialog.cboxStawkaVAT.userChoose(0);
    EXPECT_EQ(dialog.cboxKodVAT.text(), "S");
    dialog.cboxKodVAT.userChoose(1);
    dialog.cboxStawkaVAT.userChoose(0);
    EXPECT_EQ(dialog.cboxKodVAT.text(), "E");
  });
}

TEST_P(LineCalculations, ASelectionOfSLeavesTheRate) {
  test.show([&] {
    dialog.cboxStawkaVAT.userChoose(2);
    dialog.cboxKodVAT.userChoose(0);
    EXPECT_EQ(dialog.cboxStawkaVAT.text(), "18");
  });
}

TEST_P(LineCalculations, CheckVATOfAnotherNumberDoesNothing) {
  dialog.cboxKodVAT.setIndex(1);
  dialog.CheckVAT(2);
  dialog.CheckVAT(1);
  EXPECT_EQ(dialog.cboxKodVAT.index(), 1);
}

// The net amount.

TEST_P(LineCalculations, QuantityAndPriceMakeTheAmountAsTheyAreTyped) {
  test.show([&] {
    dialog.txtIloscPotw.userType(local("2,5"));
    EXPECT_EQ(dialog.txtAmount.text(), "");
    dialog.txtCenaNetto.userType(local("1,999"));
    EXPECT_EQ(dialog.txtAmount.text(), local("5,00"));
    dialog.txtIloscPotw.userType("3");
    EXPECT_EQ(dialog.txtAmount.text(), local("6,00"));
  });
}

TEST_P(LineCalculations, ATypedAmountLastsUntilTheNextChange) {
  test.show([&] {
    dialog.txtIloscPotw.userType("2");
    dialog.txtCenaNetto.userType("3");
    dialog.txtAmount.userType("99");
    EXPECT_EQ(dialog.txtAmount.text(), "99");
    dialog.txtIloscPotw.userType("4");
    EXPECT_EQ(dialog.txtAmount.text(), local("12,00"));
  });
}

TEST_P(LineCalculations, WhatIsNoNumberHasNoAmount) {
  test.show([&] {
    dialog.txtIloscPotw.userType("2");
    dialog.txtCenaNetto.userType("3");
    dialog.txtCenaNetto.userType("x");
    EXPECT_EQ(dialog.txtAmount.text(), "");
  });
}

TEST_P(LineCalculations, BothSeparatorsAreRead) {
  dialog.txtIloscPotw.setText("1,5");
  dialog.txtCenaNetto.setText("2.5");
  EXPECT_EQ(dialog.MyCalculateAmount(), local("3,75"));
}

// The expiry date.

TEST_P(LineCalculations, TheExpiryDateFollowsTheProductionDate) {
  dialog.LinePeriod = "3";
  dialog.LinePeriodFormat = "803";
  test.show([&] {
    dialog.dtProdDate.userSet(makeDate(2026, 2, 1));
    EXPECT_EQ(dialog.dtExpiryDate.date(), makeDate(2026, 2, 22));
  });
  EXPECT_EQ(dialog.MyCalculateExpiryDate(), "2026-02-22");
}

TEST_P(LineCalculations, WithoutAPeriodATypedExpiryDateIsLost) {
  test.show([&] {
    dialog.dtExpiryDate.userSet(makeDate(2030, 5, 5));
    dialog.dtProdDate.userSet(makeDate(2026, 2, 1));
    EXPECT_EQ(dialog.dtExpiryDate.date(), std::nullopt);
    EXPECT_EQ(dialog.dtExpiryDate.lastDate(), makeDate(2026, 11, 21));
  });
}

TEST_P(LineCalculations, AProductionDateSetByTheProgramLeavesTheExpiryDate) {
  dialog.LinePeriod = "3";
  dialog.LinePeriodFormat = "803";
  dialog.dtExpiryDate.setDate(makeDate(2030, 5, 5));
  dialog.dtProdDate.setDate(makeDate(2026, 2, 1));
  EXPECT_EQ(dialog.dtExpiryDate.date(), makeDate(2030, 5, 5));
}

TEST_P(LineCalculations, AnExpiryDatePastTheCalendarIsNone) {
  dialog.LinePeriod = "32767";
  dialog.LinePeriodFormat = "804";
  test.show([&] { dialog.dtProdDate.userSet(makeDate(9999, 12, 1)); });
  EXPECT_EQ(dialog.dtExpiryDate.date(), std::nullopt);
  EXPECT_THAT(test.face.boxes(), IsEmpty());
}

// Leaving a field tidies its text and never refuses.

struct LeavingAField : LineCalculations {
  std::string left(TextField& field, const std::string& typed) {
    test.show([&] {
      field.userType(typed);
      dialog.txtCDN4.userFocus();
    });
    EXPECT_THAT(test.takeBoxes(), IsEmpty());
    return field.text();
  }
};
INSTANTIATE_TEST_SUITE_P(InBothLocales, LeavingAField, ::testing::Values("ru_RU", "en_US"));

TEST_P(LeavingAField, GivesQuantitiesThreeDecimals) {
  EXPECT_EQ(left(dialog.txtIloscZam, " 1,5 "), local("1,500"));
  EXPECT_EQ(left(dialog.txtIloscPotw, " 1.5 "), local("1,500"));
  EXPECT_EQ(left(dialog.txtIloscPotw, "2"), local("2,000"));
}

TEST_P(LeavingAField, TheTrimmedDespatchedQuantityIsAChangeOfItsOwn) {
  std::vector<std::string> seen;
  dialog.txtIloscPotw.onChange = [&] { seen.push_back(dialog.txtIloscPotw.text()); };
  left(dialog.txtIloscPotw, " 4 ");
  ASSERT_GE(seen.size(), 2U);
  EXPECT_EQ(seen[seen.size() - 2], "4");
  EXPECT_EQ(seen.back(), local("4,000"));
}

TEST_P(LeavingAField, GivesPriceAndAmountTwoDecimals) {
  EXPECT_EQ(left(dialog.txtCenaNetto, " 1,235 "), local("1,24"));
  EXPECT_EQ(left(dialog.txtAmount, " 7 "), local("7,00"));
}

TEST_P(LeavingAField, OnlyTrimsWhatIsNoNumber) {
  EXPECT_EQ(left(dialog.txtIloscZam, " два "), "два");
  EXPECT_EQ(left(dialog.txtIloscPotw, " два "), "два");
  EXPECT_EQ(left(dialog.txtCenaNetto, "  "), "");
}

TEST_P(LeavingAField, CutsATidiedTextAtTheLimit) {
  // Nine characters hold no more of "123456,000".
  EXPECT_EQ(left(dialog.txtIloscPotw, "123456"), local("123456,00"));
}

TEST_P(LeavingAField, FillsCustomsFieldsUpWithZeros) {
  EXPECT_EQ(left(dialog.txtCDN1, "12"), "00000012");
  EXPECT_EQ(left(dialog.txtCDN1, "П12"), "П0000012");
  EXPECT_EQ(left(dialog.txtCDN3, "12"), "0000012");
  EXPECT_EQ(left(dialog.txtCDN3, "П12"), "П000012");
  EXPECT_EQ(left(dialog.txtCDN3, "12A"), "12A");
  EXPECT_EQ(left(dialog.txtCDN1, ""), "");
}

TEST_P(LeavingAField, TrimsATypedUnitOrCountry) {
  test.show([&] {
    dialog.comboCountry.userType(" ru ");
    dialog.cboxJednostkaMiary.userType(" ящик ");
    EXPECT_EQ(dialog.comboCountry.text(), "ru");
    dialog.txtCDN4.userFocus();
    EXPECT_EQ(dialog.cboxJednostkaMiary.text(), "ящик");
  });
}

TEST_P(LeavingAField, KeepsAChosenRow) {
  dialog.comboCountry.addRow(" (XX)Страна ");
  test.show([&] {
    dialog.comboCountry.userChoose(10);
    dialog.txtCDN4.userFocus();
  });
  EXPECT_EQ(dialog.comboCountry.text(), " (XX)Страна ");
}

}  // namespace
}  // namespace awizo::test
