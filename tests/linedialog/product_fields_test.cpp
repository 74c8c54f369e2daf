#include "line_dialog.h"

namespace awizo::test {
namespace {

using ::testing::ElementsAre;

// The fields that a product fills.

struct ProductFields : ::testing::TestWithParam<std::string> {
  LineDialog test{GetParam()};
  DlgDodaj& dialog = test.dialog;

  /// Loads one product with these elements and lets the user pick it.
  void pick(
      const std::string& elements, const std::function<void()>& before = [] {}) {
    test.loadProducts({{"4601", "Чай", "s1", "b1", elements}});
    test.show([&] {
      before();
      dialog.cboxEANProd.userChoose(0);
    });
  }
  static std::string lifespan(const std::string& period, const std::string& format) {
    return "<ProductLifespan><Period>" + period + "</Period><PeriodFormat>" + format +
           "</PeriodFormat></ProductLifespan>";
  }
};
INSTANTIATE_TEST_SUITE_P(InBothLocales, ProductFields, ::testing::Values("ru_RU", "en_US"));

TEST_P(ProductFields, AKnownUnitIsARow) {
  pick("<UnitOfMeasure>kgm</UnitOfMeasure>");
  EXPECT_EQ(dialog.cboxJednostkaMiary.index(), 1);
  EXPECT_EQ(dialog.cboxJednostkaMiary.text(), "Килограмм");
}

TEST_P(ProductFields, TheFirstUnitIsARowToo) {
  pick("<UnitOfMeasure>PCE</UnitOfMeasure>");
  EXPECT_EQ(dialog.cboxJednostkaMiary.index(), 0);
}

TEST_P(ProductFields, AnUnknownUnitIsItsText) {
  pick("<UnitOfMeasure>BX</UnitOfMeasure>");
  EXPECT_EQ(dialog.cboxJednostkaMiary.index(), -1);
  EXPECT_EQ(dialog.cboxJednostkaMiary.text(), "BX");
  EXPECT_EQ(dialog.symbolJednostkiMiary(-1), "BX");
}

TEST_P(ProductFields, NoUnitEmptiesTheList) {
  pick("", [&] { dialog.cboxJednostkaMiary.userType("ящик"); });
  EXPECT_EQ(dialog.cboxJednostkaMiary.text(), "");
}

TEST_P(ProductFields, APriceShowsTwoDecimalsAndMakesTheAmount) {
  pick("<UnitNetPrice>12.5</UnitNetPrice>", [&] { dialog.txtIloscPotw.userType("4"); });
  EXPECT_EQ(dialog.txtCenaNetto.text(), localNumber(test, "12,50"));
  EXPECT_EQ(dialog.txtAmount.text(), localNumber(test, "50,00"));
}

TEST_P(ProductFields, NoPriceLeavesNoAmount) {
  pick("", [&] {
    dialog.txtIloscPotw.userType("4");
    dialog.txtAmount.userType("99");
  });
  EXPECT_EQ(dialog.txtCenaNetto.text(), "");
  EXPECT_EQ(dialog.txtAmount.text(), "");
}

TEST_P(ProductFields, RateAndCategoryMoveTheirLists) {
  pick("<TaxRate>18</TaxRate><TaxCategoryCode>S</TaxCategoryCode>");
  EXPECT_EQ(dialog.cboxStawkaVAT.text(), "18");
  EXPECT_EQ(dialog.cboxKodVAT.text(), "S");
}

TEST_P(ProductFields, CategoryEBringsTheRateToZero) {
  pick("<TaxRate>18</TaxRate><TaxCategoryCode>E</TaxCategoryCode>");
  EXPECT_EQ(dialog.cboxStawkaVAT.text(), "0");
  EXPECT_EQ(dialog.cboxKodVAT.text(), "E");
}

TEST_P(ProductFields, AnUnknownRateOrCategoryIsNoSelection) {
  pick("<TaxRate>20.00</TaxRate><TaxCategoryCode>Z</TaxCategoryCode>", [&] {
    dialog.cboxStawkaVAT.userChoose(1);
    dialog.cboxKodVAT.userChoose(0);
  });
  EXPECT_EQ(dialog.cboxStawkaVAT.index(), -1);
  EXPECT_EQ(dialog.cboxKodVAT.index(), -1);
}

TEST_P(ProductFields, TheLifespanGivesTheExpiryDateFromTheProductionDate) {
  pick(lifespan("1", "802") + "<PackDetails><Weight>0.25</Weight></PackDetails>",
       [&] { dialog.dtProdDate.userSet(makeDate(2026, 1, 31)); });
  EXPECT_EQ(dialog.dtExpiryDate.date(), makeDate(2026, 2, 28));
  EXPECT_EQ(dialog.LinePeriod, "1");
  EXPECT_EQ(dialog.LinePeriodFormat, "802");
  EXPECT_EQ(dialog.LineWeight, "0.25");

  test.show([&] { dialog.dtProdDate.userSet(makeDate(2026, 3, 1)); });
  EXPECT_EQ(dialog.dtExpiryDate.date(), makeDate(2026, 4, 1));
}

TEST_P(ProductFields, WeeksAndDaysCountToo) {
  pick(lifespan("2", "803"));
  EXPECT_EQ(dialog.dtExpiryDate.date(), makeDate(2026, 12, 5));
  dialog.LinePeriod = "10";
  dialog.LinePeriodFormat = "804";
  EXPECT_EQ(dialog.MyCalculateExpiryDate(), "2026-12-01");
}

TEST_P(ProductFields, AnotherFormatLeavesTheProductionDate) {
  pick(lifespan("2", "805"));
  EXPECT_EQ(dialog.dtExpiryDate.date(), makeDate(2026, 11, 21));
}

TEST_P(ProductFields, APeriodThatIsNoNumberLeavesNoExpiryDate) {
  pick(lifespan("долго", "802"), [&] { dialog.dtExpiryDate.userSet(makeDate(2030, 5, 5)); });
  EXPECT_EQ(dialog.dtExpiryDate.date(), std::nullopt);
  EXPECT_EQ(dialog.dtExpiryDate.lastDate(), makeDate(2026, 11, 21)) << "it opens on today";
}

TEST_P(ProductFields, AnExpiryDateThatNoPickerHoldsStopsTheFilling) {
  pick(lifespan("-1", "802") + "<PackDetails><Weight>0.25</Weight></PackDetails>", [&] {
    dialog.LineWeight = "7";
    dialog.dtProdDate.userSet(makeDate(1601, 1, 15));
  });
  EXPECT_THAT(test.takeBoxes(),
              ElementsAre("Произошла ошибка в  setFieldsValues()|critical|OK|A date was specified "
                          "that does not fall within the MinDate and MaxDate properties"));
  EXPECT_EQ(dialog.LinePeriod, "-1") << "what was filled stays";
  EXPECT_EQ(dialog.LineWeight, "7") << "what comes later isn't filled";
  EXPECT_EQ(dialog.productChoice().ProductChangeSource, 0)
      << "the change event itself ran to its end";
}

TEST_P(ProductFields, QuantitiesAndDatesOfTheLineArentTouched) {
  pick("", [&] {
    dialog.txtIloscZam.userType("5");
    dialog.txtIloscPotw.userType("4");
    dialog.dtProdDate.userSet(makeDate(2026, 1, 2));
    dialog.comboCountry.userType("RU");
  });
  // Leaving a quantity tidies it; the choice itself changes nothing.
  EXPECT_EQ(dialog.txtIloscZam.text(), localNumber(test, "5,000"));
  EXPECT_EQ(dialog.txtIloscPotw.text(), localNumber(test, "4,000"));
  EXPECT_EQ(dialog.dtProdDate.date(), makeDate(2026, 1, 2));
  EXPECT_EQ(dialog.comboCountry.text(), "RU");
}

TEST_P(ProductFields, EverythingMayBeOverwritten) {
  pick("<UnitNetPrice>12.5</UnitNetPrice><UnitOfMeasure>KGM</UnitOfMeasure>");
  test.show([&] {
    dialog.txtCenaNetto.userType("1");
    dialog.cboxJednostkaMiary.userChoose(0);
    dialog.txtKodKup.userType("x");
  });
  EXPECT_EQ(dialog.cboxEANProd.text(), "4601");
  EXPECT_EQ(dialog.txtKodKup.text(), "x");
}

TEST_P(ProductFields, AreForgottenForANegativeIndex) {
  pick(
      "<UnitNetPrice>12.5</UnitNetPrice><UnitOfMeasure>KGM</UnitOfMeasure><TaxRate>18</TaxRate>"
      "<TaxCategoryCode>S</TaxCategoryCode><PackDetails><Weight>1</Weight></PackDetails>" +
          lifespan("1", "802"),
      [&] { dialog.txtIloscPotw.userType("4"); });
  dialog.setFieldsValues(-1);
  for (const TextField* field :
       {&dialog.txtKodSprzed, &dialog.txtKodKup, &dialog.txtCenaNetto, &dialog.txtAmount}) {
    EXPECT_EQ(field->text(), "") << field->name();
  }
  for (const DropDownList* list :
       {&dialog.cboxJednostkaMiary, &dialog.cboxStawkaVAT, &dialog.cboxKodVAT}) {
    EXPECT_EQ(list->index(), -1) << list->name();
    EXPECT_EQ(list->text(), "") << list->name();
  }
  EXPECT_EQ(dialog.LinePeriod + dialog.LinePeriodFormat + dialog.LineWeight, "");
  EXPECT_EQ(dialog.dtExpiryDate.date(), std::nullopt);
  EXPECT_EQ(dialog.dtExpiryDate.lastDate(), makeDate(2026, 11, 21));
  EXPECT_EQ(dialog.txtlEANProdWart.text(), "4601");
}

TEST_P(ProductFields, OfARowThatIsntThereAreReported) {
  pick("");
  dialog.setFieldsValues(1);
  EXPECT_THAT(test.takeBoxes(), ElementsAre("Произошла ошибка в  setFieldsValues()|critical|OK|"
                                            "Subscript out of range"));
}

}  // namespace
}  // namespace awizo::test
