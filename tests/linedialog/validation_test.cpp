#include "line_dialog.h"
#include "support/logged.h"

namespace awizo::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr const char* eanRefused =
    "VIRD|critical|OK|Стоимость для поля 'Штрих-код товара' есть ошибочная или отсутсвует";
constexpr const char* orderedRefused =
    "VIRD|critical|OK|Неправильно количество в поле 'Количество заказа'";
constexpr const char* despatchedRefused =
    "VIRD|critical|OK|Стоимость для поля 'Количество отгружено' есть ошибочная или отсутсвует";
constexpr const char* tooMuchRefused =
    "VIRD|critical|OK|Подтверждённое количество больше заказанного количества товара";
constexpr const char* packedRefused =
    "VIRD|critical|OK|Подтверждённое количество меньше, чем суммарное количество товара в "
    "упаковках.\\rУдалите, пожалуйста, принадлежность товарных позиции к упаковке  или увеличте "
    "\\rподтверждённое количество товара.";
constexpr const char* priceRefused =
    "VIRD|critical|OK|Неправильно количество в поле 'Цена за единицу без НДС'";
constexpr const char* amountRefused =
    "VIRD|critical|OK|Неправильно количество в поле 'Сумма без НДС'";
constexpr const char* customsRefused = "VIRD|exclamation|OK|ГТД - обязательный";
constexpr const char* countryRefused = "VIRD|exclamation|OK|Код ISO неправильный";

/// A user before a dialog without a catalogue, with all fields empty.
struct LineValidation : ::testing::TestWithParam<std::string> {
  LineDialog test{GetParam()};
  DlgDodaj& dialog = test.dialog;

  LineValidation() {
    test.load();
    dialog.lblPackedQuantityValue.setCaption(local("0,000"));
  }
  std::string local(const std::string& text) const { return localNumber(test, text); }
  void typeGoodLine() {
    dialog.txtlEANProdWart.userType("4607000000116");
    dialog.txtIloscPotw.userType("5");
  }
  /// The user fills the fields in this way on top of a good line, and accepts.
  void acceptWith(const std::function<void()>& act) {
    test.show([&] {
      typeGoodLine();
      act();
      dialog.btnDodaj.userClick();
      accepted = !dialog.shown();
      focusAfter = test.focus();
    });
  }
  void expectRefused(const std::string& box, const std::string& focus) {
    EXPECT_FALSE(accepted);
    EXPECT_THAT(test.takeBoxes(), ElementsAre(box));
    EXPECT_EQ(focusAfter, focus);
  }
  void expectAccepted() {
    EXPECT_TRUE(accepted);
    EXPECT_EQ(dialog.DlgResult, 1);
    EXPECT_THAT(test.takeBoxes(), IsEmpty());
  }

  bool accepted = false;
  std::string focusAfter;
};
INSTANTIATE_TEST_SUITE_P(InBothLocales, LineValidation, ::testing::Values("ru_RU", "en_US"));

TEST_P(LineValidation, ALineNeedsItsEANAndItsDespatchedQuantityOnly) {
  acceptWith([] {});
  expectAccepted();
}

TEST_P(LineValidation, NeedsAnEAN) {
  acceptWith([&] { dialog.txtlEANProdWart.userType(""); });
  expectRefused(eanRefused, "txtlEANProdWart");
}

TEST_P(LineValidation, TheEANIsANumber) {
  acceptWith([&] { dialog.txtlEANProdWart.userType("46070000001X"); });
  expectRefused(eanRefused, "txtlEANProdWart");
}

TEST_P(LineValidation, TheEANsLengthAndCheckDigitDontMatter) {
  acceptWith([&] { dialog.txtlEANProdWart.userType("-1"); });
  expectAccepted();
}

TEST_P(LineValidation, TheOrderedQuantityIsANumberIfGiven) {
  acceptWith([&] { dialog.txtIloscZam.userType("много"); });
  expectRefused(orderedRefused, "txtIloscZam");
}

TEST_P(LineValidation, NeedsADespatchedQuantity) {
  acceptWith([&] { dialog.txtIloscPotw.userType(" "); });
  expectRefused(despatchedRefused, "txtIloscPotw");
  acceptWith([&] { dialog.txtIloscPotw.userType("два"); });
  expectRefused(despatchedRefused, "txtIloscPotw");
}

TEST_P(LineValidation, NoMoreIsDespatchedThanOrdered) {
  acceptWith([&] {
    dialog.txtIloscZam.userType("5");
    dialog.txtIloscPotw.userType(local("5,001"));
  });
  expectRefused(tooMuchRefused, "txtIloscPotw");
}

TEST_P(LineValidation, AllThatWasOrderedMayBeDespatched) {
  acceptWith([&] { dialog.txtIloscZam.userType(" 5 "); });
  expectAccepted();
  EXPECT_EQ(dialog.txtIloscZam.text(), local("5,000"));
  EXPECT_EQ(dialog.txtIloscPotw.text(), local("5,000"));
}

TEST_P(LineValidation, QuantitiesAreComparedWithThreeDecimals) {
  acceptWith([&] {
    dialog.txtIloscZam.userType("5");
    dialog.txtIloscPotw.userType(local("5,0004"));
  });
  expectAccepted();
}

TEST_P(LineValidation, WithoutAnOrderedQuantityAnyMayBeDespatched) {
  acceptWith([&] { dialog.txtIloscPotw.userType("999999"); });
  expectAccepted();
}

TEST_P(LineValidation, TwoBuyersTakeMoreThanTheyOrdered) {
  for (const char* buyer : {"4607173499998", "4607070199991"}) {
    test.session.BuyerILN = buyer;
    acceptWith([&] {
      dialog.txtIloscZam.userType("5");
      dialog.txtIloscPotw.userType("10");
    });
    expectAccepted();
  }
  test.session.BuyerILN = "4607070199992";
  acceptWith([&] { dialog.txtIloscPotw.userType("10"); });
  expectRefused(tooMuchRefused, "txtIloscPotw");
}

TEST_P(LineValidation, NoLessIsDespatchedThanLiesInPackages) {
  dialog.lblPackedQuantityValue.setCaption(local("5,001"));
  acceptWith([&] { dialog.txtIloscZam.userType("9"); });
  // The focus stays where the click has put it.
  expectRefused(packedRefused, "btnDodaj");
}

TEST_P(LineValidation, AllMayLieInPackages) {
  dialog.lblPackedQuantityValue.setCaption(local("5,000"));
  acceptWith([] {});
  EXPECT_TRUE(accepted);
}

TEST_P(LineValidation, PriceAndAmountAreNumbersIfGiven) {
  acceptWith([&] { dialog.txtCenaNetto.userType("дорого"); });
  expectRefused(priceRefused, "txtCenaNetto");
  acceptWith([&] {
    dialog.txtCenaNetto.userType("");
    dialog.txtAmount.userType("дорого");
  });
  expectRefused(amountRefused, "txtAmount");
}

TEST_P(LineValidation, AHiddenPriceIsCheckedTooAndTakesNoFocus) {
  dialog.txtCenaNetto.setText("дорого");
  dialog.txtCenaNetto.setVisible(false);
  acceptWith([] {});
  expectRefused(priceRefused, "btnDodaj");
}

TEST_P(LineValidation, TheCustomsNumberIsGivenWholeOrNotAtAll) {
  acceptWith([&] { dialog.txtCDN1.userType("12345678"); });
  expectRefused(customsRefused, "txtCDN3");
  acceptWith([&] {
    dialog.txtCDN1.userType("");
    dialog.txtCDN3.userType("1234567");
  });
  expectRefused(customsRefused, "txtCDN1");
  acceptWith([&] {
    dialog.txtCDN1.userType("12345678");
    dialog.txtCDN3.userType("1234567");
  });
  expectAccepted();
}

TEST_P(LineValidation, TheFourthCustomsFieldAndTheDateAreNeverChecked) {
  acceptWith([&] {
    dialog.txtCDN4.userType("??");
    dialog.dpCDN2.userSet(makeDate(1601, 1, 1));
  });
  expectAccepted();
}

TEST_P(LineValidation, ShortCustomsFieldsAreFilledUpWithZeros) {
  acceptWith([&] {
    dialog.txtCDN1.userType("П12");
    dialog.txtCDN3.userType("7");
  });
  expectAccepted();
  EXPECT_EQ(dialog.txtCDN1.text(), "П0000012");
  EXPECT_EQ(dialog.txtCDN3.text(), "0000007");
}

TEST_P(LineValidation, CustomsFieldsAreNumbers) {
  acceptWith([&] {
    dialog.txtCDN1.userType("12A45678");
    dialog.txtCDN3.userType("1234567");
  });
  expectRefused(customsRefused, "txtCDN1");
  acceptWith([&] {
    dialog.txtCDN1.userType("12345678");
    dialog.txtCDN3.userType("12345X7");
  });
  expectRefused(customsRefused, "txtCDN3");
}

TEST_P(LineValidation, TheCountryIsKnownIfGiven) {
  acceptWith([&] { dialog.comboCountry.userType("XX"); });
  expectRefused(countryRefused, "btnDodaj");
  EXPECT_EQ(dialog.comboCountry.text(), "XX");
  acceptWith([&] { dialog.comboCountry.userType("Россия"); });
  expectRefused(countryRefused, "btnDodaj");
  EXPECT_EQ(dialog.comboCountry.text(), "Россия") << "it stays as it was typed";
}

TEST_P(LineValidation, ACountryLeavesTheDialogAsItsCode) {
  acceptWith([&] { dialog.comboCountry.userChoose(0); });
  expectAccepted();
  EXPECT_EQ(dialog.comboCountry.text(), "RU");
  acceptWith([&] { dialog.comboCountry.userType("pl"); });
  expectAccepted();
  EXPECT_EQ(dialog.comboCountry.text(), "PL");
  acceptWith([&] { dialog.comboCountry.userType(""); });
  expectAccepted();
  EXPECT_EQ(dialog.comboCountry.text(), "");
}

TEST_P(LineValidation, StopsAtTheFirstFault) {
  dialog.lblPackedQuantityValue.setCaption("100");
  const std::vector<std::pair<std::function<void()>, std::string>> mended{
      {[] {}, eanRefused},
      {[&] { dialog.txtlEANProdWart.userType("1"); }, orderedRefused},
      {[&] { dialog.txtIloscZam.userType("5"); }, despatchedRefused},
      {[&] { dialog.txtIloscPotw.userType("6"); }, tooMuchRefused},
      {[&] { dialog.txtIloscPotw.userType("4"); }, packedRefused},
      {[&] { dialog.lblPackedQuantityValue.setCaption("0"); }, priceRefused},
      {[&] { dialog.txtCenaNetto.setText(""); }, amountRefused},
      {[&] { dialog.txtAmount.userType(""); }, customsRefused},
      {[&] { dialog.txtCDN1.userType("1"); }, customsRefused},
      {[&] { dialog.txtCDN3.userType("1"); }, countryRefused},
  };
  test.show([&] {
    dialog.txtIloscZam.userType("x");
    dialog.txtIloscPotw.userType("x");
    dialog.txtCenaNetto.userType("x");
    dialog.txtCDN1.userType("x");
    dialog.txtCDN3.userType("x");
    dialog.comboCountry.userType("x");
    for (const auto& [mend, box] : mended) {
      mend();
      if (box == amountRefused) dialog.txtAmount.setText("x");
      dialog.btnDodaj.userClick();
      EXPECT_THAT(test.takeBoxes(), ElementsAre(box));
    }
    dialog.comboCountry.userType("RU");
    EXPECT_TRUE(dialog.Walidacja());
    EXPECT_THAT(test.takeBoxes(), IsEmpty());
  });
}

TEST_P(LineValidation, TidiesTheFieldsThatItReads) {
  test.show([&] {
    dialog.txtlEANProdWart.setText("1");
    dialog.txtIloscZam.setText(" 7 ");
    dialog.txtIloscPotw.setText(" 1.5 ");
    dialog.txtCenaNetto.setText(" 2,345 ");
    EXPECT_TRUE(dialog.Walidacja());
  });
  EXPECT_EQ(dialog.txtIloscZam.text(), local("7,000"));
  EXPECT_EQ(dialog.txtIloscPotw.text(), local("1,500"));
  EXPECT_EQ(dialog.txtCenaNetto.text(), local("2,35"));
  EXPECT_EQ(dialog.txtAmount.text(), local("3,53"));
}

/// Code may have filled a field that the user never left.
TEST_P(LineValidation, TidiesWhatNobodyHasLeft) {
  test.show([&] {
    typeGoodLine();
    dialog.txtIloscPotw.setText(local("5,000"));
    dialog.txtAmount.setText(" 7 ");
    dialog.txtCDN1.setText("12");
    dialog.txtCDN3.setText("7");
    EXPECT_TRUE(dialog.Walidacja());
  });
  EXPECT_EQ(dialog.txtAmount.text(), local("7,00"));
  EXPECT_EQ(dialog.txtCDN1.text(), "00000012");
  EXPECT_EQ(dialog.txtCDN3.text(), "0000007");
}

TEST_P(LineValidation, AHostileTextInEveryFieldOnlyRefuses) {
  const std::string hostile = std::string(100000, '9') + "$@<&>\x01";
  test.show([&] {
    for (TextField* field :
         {&dialog.txtlEANProdWart, &dialog.txtIloscZam, &dialog.txtIloscPotw, &dialog.txtCenaNetto,
          &dialog.txtAmount, &dialog.txtCDN1, &dialog.txtCDN3, &dialog.txtCDN4,
          &dialog.txtNazwaProdWart, &dialog.txtKodKup, &dialog.txtKodSprzed}) {
      field->userType(hostile);
    }
    dialog.comboCountry.userType(hostile);
    dialog.cboxJednostkaMiary.userType(hostile);
    EXPECT_FALSE(dialog.Walidacja());
  });
  EXPECT_EQ(test.face.boxes().size(), 1U);
}

TEST_P(LineValidation, AsksWhatLiesInPackagesInTheLog) {
  openLog(test);
  test.show([&] {
    dialog.txtlEANProdWart.setText("1");
    dialog.txtIloscPotw.setText("4");
    dialog.Walidacja();
  });
  std::vector<std::string> lines = split(test.files.bytes(logPath), "\r\n");
  std::erase_if(lines,
                [](const std::string& line) { return line.find("GetMaxQuantity") == line.npos; });
  ASSERT_GE(lines.size(), 2U);
  EXPECT_THAT(lines[lines.size() - 2],
              ::testing::EndsWith("GetMaxQuantity lblPackedQuantityValue = " + local("0,000")));
  EXPECT_THAT(lines.back(), ::testing::EndsWith("GetMaxQuantity txtIloscPotw = " + local("4,000")));
}

}  // namespace
}  // namespace awizo::test
