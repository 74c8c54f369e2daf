#include "formats/logged.h"
#include "line_dialog.h"

namespace awizo::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

const Product tea{"4601", "Чай", "s1", "b1",
                  "<UnitOfMeasure>PCE</UnitOfMeasure><UnitNetPrice>10</UnitNetPrice>"};
const Product coffee{"4602", "Кофе", "s2", "b2",
                     "<UnitOfMeasure>KGM</UnitOfMeasure><UnitNetPrice>20.5</UnitNetPrice>"};
const Product juice{"4603", "Сок", "s3", "b3"};

struct ProductChoice : ::testing::Test {
  LineDialog test;
  DlgDodaj& dialog = test.dialog;

  /// Texts of the lists by EAN, name, buyer's and supplier's code.
  std::vector<std::string> lists() const {
    return {dialog.cboxEANProd.text(), dialog.cboxNazwaProd.text(), dialog.cboxKodAPP.text(),
            dialog.cboxKodSprzed.text()};
  }
  /// Texts of the fields below them.
  std::vector<std::string> fields() const {
    return {dialog.txtlEANProdWart.text(), dialog.txtNazwaProdWart.text(), dialog.txtKodKup.text(),
            dialog.txtKodSprzed.text()};
  }
  static void choose(DropDownList& list, std::string_view text) {
    for (int row = 0; row < list.count(); ++row) {
      if (list.rows()[static_cast<std::size_t>(row)] == text) return list.userChoose(row);
    }
    ADD_FAILURE() << list.name() << " has no row " << text;
  }
};

// What each list leads to.

TEST_F(ProductChoice, ByEANMovesTheOthers) {
  test.loadProducts({tea, coffee, juice});
  openLog(test);
  test.show([&] { choose(dialog.cboxEANProd, "4602"); });
  EXPECT_THAT(lists(), ElementsAre("4602", "Кофе", "b2", "s2"));
  EXPECT_THAT(fields(), ElementsAre("4602", "Кофе", "b2", "s2"));
  EXPECT_EQ(dialog.txtCenaNetto.text(), "20,50");
  EXPECT_EQ(dialog.ProductChangeSource, 0);
  EXPECT_THAT(loggedMessages(test),
              ElementsAre("cboxEANProd_Change start", "cboxKodAPP_Change start",
                          "cboxNazwaProd_Change start", "cboxNazwaProd_Change koniec",
                          "cboxKodAPP_Change koniec", "cboxKodSprzed_Change start",
                          "cboxKodSprzed_Change koniec", "cboxEANProd_Change koniec"));
}

TEST_F(ProductChoice, ByNameMovesTheOthers) {
  test.loadProducts({tea, coffee, juice});
  openLog(test);
  test.show([&] { choose(dialog.cboxNazwaProd, "Кофе"); });
  EXPECT_THAT(lists(), ElementsAre("4602", "Кофе", "b2", "s2"));
  EXPECT_THAT(fields(), ElementsAre("4602", "Кофе", "b2", "s2"));
  EXPECT_EQ(dialog.txtCenaNetto.text(), "20,50");
  EXPECT_THAT(loggedMessages(test),
              ElementsAre("cboxNazwaProd_Change start", "cboxEANProd_Change start",
                          "cboxKodAPP_Change start", "cboxKodAPP_Change koniec",
                          "cboxKodSprzed_Change start", "cboxKodSprzed_Change koniec",
                          "cboxEANProd_Change koniec", "cboxNazwaProd_Change koniec"));
}

TEST_F(ProductChoice, ByBuyersCodeLeadsToTheNameAndOn) {
  test.loadProducts({tea, coffee, juice});
  openLog(test);
  test.show([&] { choose(dialog.cboxKodAPP, "b2"); });
  EXPECT_THAT(lists(), ElementsAre("4602", "Кофе", "b2", "s2"));
  EXPECT_THAT(fields(), ElementsAre("4602", "Кофе", "b2", "s2"));
  EXPECT_EQ(dialog.txtCenaNetto.text(), "20,50");
  EXPECT_THAT(loggedMessages(test),
              ElementsAre("cboxKodAPP_Change start", "cboxNazwaProd_Change start",
                          "cboxEANProd_Change start", "cboxKodSprzed_Change start",
                          "cboxKodSprzed_Change koniec", "cboxEANProd_Change koniec",
                          "cboxNazwaProd_Change koniec", "cboxKodAPP_Change koniec"));
}

TEST_F(ProductChoice, BySuppliersCodeLeadsToTheNameAndOn) {
  test.loadProducts({tea, coffee, juice});
  openLog(test);
  test.show([&] { choose(dialog.cboxKodSprzed, "s2"); });
  EXPECT_THAT(lists(), ElementsAre("4602", "Кофе", "b2", "s2"));
  EXPECT_THAT(fields(), ElementsAre("4602", "Кофе", "b2", "s2"));
  EXPECT_EQ(dialog.txtCenaNetto.text(), "20,50");
  EXPECT_THAT(loggedMessages(test),
              ElementsAre("cboxKodSprzed_Change start", "cboxNazwaProd_Change start",
                          "cboxEANProd_Change start", "cboxKodAPP_Change start",
                          "cboxKodAPP_Change koniec", "cboxEANProd_Change koniec",
                          "cboxNazwaProd_Change koniec", "cboxKodSprzed_Change koniec"));
}

TEST_F(ProductChoice, AnotherProductFollowsFromAnyList) {
  test.loadProducts({tea, coffee, juice});
  test.show([&] {
    choose(dialog.cboxEANProd, "4601");
    choose(dialog.cboxKodSprzed, "s3");
    EXPECT_THAT(lists(), ElementsAre("4603", "Сок", "b3", "s3"));
    choose(dialog.cboxKodAPP, "b2");
    EXPECT_THAT(lists(), ElementsAre("4602", "Кофе", "b2", "s2"));
    choose(dialog.cboxNazwaProd, "Чай");
    EXPECT_THAT(lists(), ElementsAre("4601", "Чай", "b1", "s1"));
    EXPECT_THAT(fields(), ElementsAre("4601", "Чай", "b1", "s1"));
  });
}

TEST_F(ProductChoice, ATextTypedInFullIsAsGoodAsAChoice) {
  test.loadProducts({tea, coffee});
  test.show([&] { dialog.cboxKodAPP.userType("b2"); });
  EXPECT_THAT(lists(), ElementsAre("4602", "Кофе", "b2", "s2"));
}

TEST_F(ProductChoice, TheSameProductAgainChangesNothing) {
  test.loadProducts({tea, coffee});
  test.show([&] {
    choose(dialog.cboxEANProd, "4602");
    dialog.txtKodKup.userType("свой код");
    openLog(test);
    choose(dialog.cboxEANProd, "4602");
  });
  EXPECT_EQ(dialog.txtKodKup.text(), "свой код");
  EXPECT_THAT(loggedMessages(test), IsEmpty());
}

// Texts that are in no list.

TEST_F(ProductChoice, ATypedTextGoesToItsOwnFieldAlone) {
  test.loadProducts({tea, coffee});
  test.show([&] {
    choose(dialog.cboxEANProd, "4602");
    dialog.LinePeriod = "6";
    dialog.LineWeight = "0.5";
    dialog.cboxNazwaProd.userType("Кофе молотый");
    EXPECT_THAT(lists(), ElementsAre("4602", "Кофе молотый", "b2", "s2"));
    EXPECT_THAT(fields(), ElementsAre("4602", "Кофе молотый", "b2", "s2"));
    dialog.cboxEANProd.userType("9999");
    dialog.cboxKodAPP.userType("b9");
    dialog.cboxKodSprzed.userType("s9");
    EXPECT_THAT(fields(), ElementsAre("9999", "Кофе молотый", "b9", "s9"));
    EXPECT_EQ(dialog.txtCenaNetto.text(), "20,50");
    EXPECT_EQ(dialog.LinePeriod, "6");
    EXPECT_EQ(dialog.LineWeight, "0.5");
    EXPECT_EQ(dialog.ProductChangeSource, 0);
  });
  EXPECT_THAT(test.face.boxes(), IsEmpty());
}

TEST_F(ProductChoice, TheCaseOfATypedTextMatters) {
  test.loadProducts({tea});
  test.show([&] { dialog.cboxNazwaProd.userType("чай"); });
  EXPECT_THAT(lists(), ElementsAre("", "чай", "", ""));
}

TEST_F(ProductChoice, AnEmptiedListEmptiesItsFieldAlone) {
  test.loadProducts({tea});
  test.show([&] {
    choose(dialog.cboxEANProd, "4601");
    dialog.cboxKodSprzed.userType("");
  });
  EXPECT_THAT(fields(), ElementsAre("4601", "Чай", "b1", ""));
}

TEST_F(ProductChoice, ATypedLetterStaysTheLetterItIs) {
  test.loadProducts({tea});
  test.show([&] { dialog.cboxNazwaProd.userType("Ж"); });
  EXPECT_EQ(dialog.txtNazwaProdWart.text(), "Ж");
}

TEST_F(ProductChoice, ALongTextIsCutInTheFieldAlone) {
  test.loadProducts({{"460123456789012345", "Чай"}});
  test.show([&] { choose(dialog.cboxNazwaProd, "Чай"); });
  EXPECT_EQ(dialog.cboxEANProd.text(), "460123456789012345");
  EXPECT_EQ(dialog.txtlEANProdWart.text(), "46012345678901");
}

TEST_F(ProductChoice, ALineWithoutEANShowsTheMarker) {
  test.loadProducts({{"", "Чай"}, coffee});
  test.show([&] { choose(dialog.cboxNazwaProd, "Чай"); });
  EXPECT_EQ(dialog.cboxEANProd.text(), "-1");
  EXPECT_EQ(dialog.txtlEANProdWart.text(), "-1");
}

// Lines that share a name or an EAN.

TEST_F(ProductChoice, AmongEqualNamesTheFirstRowOfThatNameWins) {
  // The walk of the sort turns two equal names round, so the second line has the first row.
  test.loadProducts({{"4601", "Чай", "s1", "b1"}, {"4602", "Чай", "s2", "b2"}});
  ASSERT_THAT(dialog.dictionary().IdxName, ElementsAre(1, 0));
  test.show([&] { choose(dialog.cboxKodSprzed, "s1"); });
  EXPECT_THAT(lists(), ElementsAre("4602", "Чай", "b2", "s1")) << "the chosen list isn't led back";
  EXPECT_THAT(fields(), ElementsAre("4602", "Чай", "b2", "s2"));
}

TEST_F(ProductChoice, ASecondLineOfTheNameIsReachedByItsEAN) {
  test.loadProducts({{"4601", "Чай", "s1", "b1"}, {"4602", "Чай", "s2", "b2"}});
  test.show([&] { choose(dialog.cboxEANProd, "4601"); });
  // Setting the buyer's code leads over the name to the EAN of the name's first row, whose change
  // runs to its end within; then the outer one sets the supplier's code of its own line.
  EXPECT_THAT(lists(), ElementsAre("4602", "Чай", "b2", "s1"));
  EXPECT_THAT(fields(), ElementsAre("4602", "Чай", "b2", "s2"));
  EXPECT_EQ(dialog.ProductChangeSource, 0);
}

TEST_F(ProductChoice, PickingTheOtherRowOfTheNameChangesNothing) {
  test.loadProducts({{"4601", "Чай", "s1", "b1"}, {"4602", "Чай", "s2", "b2"}});
  test.show([&] {
    dialog.cboxNazwaProd.userChoose(0);
    EXPECT_EQ(dialog.txtlEANProdWart.text(), "4602");
    dialog.cboxNazwaProd.userChoose(1);
    EXPECT_EQ(dialog.cboxNazwaProd.index(), 1);
    EXPECT_EQ(dialog.txtlEANProdWart.text(), "4602");
  });
}

TEST_F(ProductChoice, AmongEqualEANsTheFirstRowWinsAndIsntFilledAgain) {
  test.loadProducts({{"4601", "Кофе", "s1", "b1"}, {"4601", "Чай", "s2", "b2"}});
  ASSERT_THAT(dialog.dictionary().IdxEAN, ElementsAre(1, 0));
  test.show([&] {
    choose(dialog.cboxNazwaProd, "Кофе");
    EXPECT_THAT(lists(), ElementsAre("4601", "Кофе", "b2", "s2"));
    EXPECT_THAT(fields(), ElementsAre("4601", "Кофе", "b2", "s2"));
    dialog.txtKodKup.userType("свой код");
    choose(dialog.cboxNazwaProd, "Чай");
    EXPECT_THAT(fields(), ElementsAre("4601", "Чай", "свой код", "s2"));
  });
}

// The marks.

TEST_F(ProductChoice, AMarkThatStayedKeepsItsBlocksInForce) {
  test.loadProducts({tea, coffee});
  test.show([&] {
    choose(dialog.cboxNazwaProd, "Чай");
    dialog.ProductChangeSource = 3;  // as after a change of the name that failed
    choose(dialog.cboxEANProd, "4602");
    EXPECT_THAT(lists(), ElementsAre("4602", "Чай", "b2", "s2"));
    EXPECT_EQ(dialog.ProductChangeSource, 3);
    choose(dialog.cboxNazwaProd, "Кофе");
    EXPECT_EQ(dialog.ProductChangeSource, 0);
  });
}

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
  EXPECT_EQ(dialog.ProductChangeSource, 0) << "the change event itself ran to its end";
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
