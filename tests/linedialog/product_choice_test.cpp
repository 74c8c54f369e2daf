#include "line_dialog.h"
#include "support/logged.h"

namespace awizo::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

const Product tea{"4601", "Чай", "s1", "b1",
                  "<UnitOfMeasure>PCE</UnitOfMeasure><UnitNetPrice>10</UnitNetPrice>"};
const Product coffee{"4602", "Кофе", "s2", "b2",
                     "<UnitOfMeasure>KGM</UnitOfMeasure><UnitNetPrice>20.5</UnitNetPrice>"};
const Product juice{"4603", "Сок", "s3", "b3"};

struct ChoosingAProduct : ::testing::Test {
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

TEST_F(ChoosingAProduct, ByEANMovesTheOthers) {
  test.loadProducts({tea, coffee, juice});
  openLog(test);
  test.show([&] { choose(dialog.cboxEANProd, "4602"); });
  EXPECT_THAT(lists(), ElementsAre("4602", "Кофе", "b2", "s2"));
  EXPECT_THAT(fields(), ElementsAre("4602", "Кофе", "b2", "s2"));
  EXPECT_EQ(dialog.txtCenaNetto.text(), "20,50");
  EXPECT_EQ(dialog.productChoice().ProductChangeSource, 0);
  EXPECT_THAT(loggedMessages(test),
              ElementsAre("cboxEANProd_Change start", "cboxKodAPP_Change start",
                          "cboxNazwaProd_Change start", "cboxNazwaProd_Change koniec",
                          "cboxKodAPP_Change koniec", "cboxKodSprzed_Change start",
                          "cboxKodSprzed_Change koniec", "cboxEANProd_Change koniec"));
}

TEST_F(ChoosingAProduct, ByNameMovesTheOthers) {
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

TEST_F(ChoosingAProduct, ByBuyersCodeLeadsToTheNameAndOn) {
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

TEST_F(ChoosingAProduct, BySuppliersCodeLeadsToTheNameAndOn) {
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

TEST_F(ChoosingAProduct, AnotherProductFollowsFromAnyList) {
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

TEST_F(ChoosingAProduct, ATextTypedInFullIsAsGoodAsAChoice) {
  test.loadProducts({tea, coffee});
  test.show([&] { dialog.cboxKodAPP.userType("b2"); });
  EXPECT_THAT(lists(), ElementsAre("4602", "Кофе", "b2", "s2"));
}

TEST_F(ChoosingAProduct, TheSameProductAgainChangesNothing) {
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

TEST_F(ChoosingAProduct, ATypedTextGoesToItsOwnFieldAlone) {
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
    EXPECT_EQ(dialog.productChoice().ProductChangeSource, 0);
  });
  EXPECT_THAT(test.face.boxes(), IsEmpty());
}

TEST_F(ChoosingAProduct, TheCaseOfATypedTextMatters) {
  test.loadProducts({tea});
  test.show([&] { dialog.cboxNazwaProd.userType("чай"); });
  EXPECT_THAT(lists(), ElementsAre("", "чай", "", ""));
}

TEST_F(ChoosingAProduct, AnEmptiedListEmptiesItsFieldAlone) {
  test.loadProducts({tea});
  test.show([&] {
    choose(dialog.cboxEANProd, "4601");
    dialog.cboxKodSprzed.userType("");
  });
  EXPECT_THAT(fields(), ElementsAre("4601", "Чай", "b1", ""));
}

TEST_F(ChoosingAProduct, ATypedLetterStaysTheLetterItIs) {
  test.loadProducts({tea});
  test.show([&] { dialog.cboxNazwaProd.userType("Ж"); });
  EXPECT_EQ(dialog.txtNazwaProdWart.text(), "Ж");
}

TEST_F(ChoosingAProduct, ALongTextIsCutInTheFieldAlone) {
  test.loadProducts({{"460123456789012345", "Чай"}});
  test.show([&] { choose(dialog.cboxNazwaProd, "Чай"); });
  EXPECT_EQ(dialog.cboxEANProd.text(), "460123456789012345");
  EXPECT_EQ(dialog.txtlEANProdWart.text(), "46012345678901");
}

TEST_F(ChoosingAProduct, ALongNameIsWholeInTheListAndCutInTheField) {
  const std::string longName(100000, 'x');
  test.loadProducts({{"1", longName}, {"2", "б"}});
  test.show([&] { choose(dialog.cboxEANProd, "1"); });
  EXPECT_EQ(dialog.txtNazwaProdWart.text().size(), 70U);
  EXPECT_EQ(dialog.cboxNazwaProd.text(), longName);
}

TEST_F(ChoosingAProduct, ALineWithoutEANShowsTheMarker) {
  test.loadProducts({{"", "Чай"}, coffee});
  test.show([&] { choose(dialog.cboxNazwaProd, "Чай"); });
  EXPECT_EQ(dialog.cboxEANProd.text(), "-1");
  EXPECT_EQ(dialog.txtlEANProdWart.text(), "-1");
}

// Lines that share a name or an EAN.

TEST_F(ChoosingAProduct, AmongEqualNamesTheFirstRowOfThatNameWins) {
  // The walk of the sort turns two equal names round, so the second line has the first row.
  test.loadProducts({{"4601", "Чай", "s1", "b1"}, {"4602", "Чай", "s2", "b2"}});
  ASSERT_THAT(dialog.dictionary().IdxName, ElementsAre(1, 0));
  test.show([&] { choose(dialog.cboxKodSprzed, "s1"); });
  EXPECT_THAT(lists(), ElementsAre("4602", "Чай", "b2", "s1")) << "the chosen list isn't led back";
  EXPECT_THAT(fields(), ElementsAre("4602", "Чай", "b2", "s2"));
}

TEST_F(ChoosingAProduct, AmongEqualNamesTheChosenBuyersCodeStaysToo) {
  test.loadProducts({{"4601", "Чай", "s1", "b1"}, {"4602", "Чай", "s2", "b2"}});
  test.show([&] { choose(dialog.cboxKodAPP, "b1"); });
  EXPECT_THAT(lists(), ElementsAre("4602", "Чай", "b1", "s2"));
  EXPECT_THAT(fields(), ElementsAre("4602", "Чай", "b2", "s2"));
}

TEST_F(ChoosingAProduct, ASecondLineOfTheNameIsReachedByItsEAN) {
  test.loadProducts({{"4601", "Чай", "s1", "b1"}, {"4602", "Чай", "s2", "b2"}});
  test.show([&] { choose(dialog.cboxEANProd, "4601"); });
  // Setting the buyer's code leads over the name to the EAN of the name's first row, whose change
  // runs to its end within; then the outer one sets the supplier's code of its own line.
  EXPECT_THAT(lists(), ElementsAre("4602", "Чай", "b2", "s1"));
  EXPECT_THAT(fields(), ElementsAre("4602", "Чай", "b2", "s2"));
  EXPECT_EQ(dialog.productChoice().ProductChangeSource, 0);
}

TEST_F(ChoosingAProduct, PickingTheOtherRowOfTheNameChangesNothing) {
  test.loadProducts({{"4601", "Чай", "s1", "b1"}, {"4602", "Чай", "s2", "b2"}});
  test.show([&] {
    dialog.cboxNazwaProd.userChoose(0);
    EXPECT_EQ(dialog.txtlEANProdWart.text(), "4602");
    dialog.cboxNazwaProd.userChoose(1);
    EXPECT_EQ(dialog.cboxNazwaProd.index(), 1);
    EXPECT_EQ(dialog.txtlEANProdWart.text(), "4602");
  });
}

TEST_F(ChoosingAProduct, AmongEqualEANsTheFirstRowWinsAndIsntFilledAgain) {
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

TEST_F(ChoosingAProduct, TheSecondRowOfAnEANLeadsToTheFieldsOfTheFirst) {
  test.loadProducts({{"4601", "Кофе", "s1", "b1", "<UnitNetPrice>1</UnitNetPrice>"},
                     {"4601", "Чай", "s2", "b2", "<UnitNetPrice>2</UnitNetPrice>"}});
  ASSERT_THAT(dialog.dictionary().IdxEAN, ElementsAre(1, 0));
  test.show([&] { dialog.cboxEANProd.userChoose(1); });
  // The name sets the EAN, which moves the list to its first row while the text stays.
  EXPECT_EQ(dialog.cboxEANProd.index(), 0);
  EXPECT_THAT(lists(), ElementsAre("4601", "Кофе", "b1", "s1"));
  EXPECT_THAT(fields(), ElementsAre("4601", "Кофе", "b2", "s2"));
  EXPECT_EQ(dialog.txtCenaNetto.text(), "2,00");
  EXPECT_EQ(dialog.productChoice().ProductChangeSource, 0);
  EXPECT_THAT(test.takeBoxes(), IsEmpty());
}

/// Setting the buyer's code leads over the name to another EAN, and from there round and round.
TEST_F(ChoosingAProduct, LinesThatLeadToEachOtherWithoutEndAreToldOnce) {
  test.loadProducts({{"1", "в", "s1", "b2"},
                     {"2", "б", "s1", "b1"},
                     {"1", "в", "s3", "b1"},
                     {"2", "в", "s1", "b3"}});
  test.show([&] {
    dialog.cboxEANProd.userChoose(0);
    EXPECT_THAT(test.takeBoxes(),
                ElementsAre("VIRDПроизошла ошибка в  cboxEANProd_Change|critical|OK|Out of stack "
                            "space"));
    EXPECT_EQ(dialog.productChoice().ProductChangeSource, 1)
        << "the last step of the event was skipped";
    // The dialog is as good as before: a chain with an end runs to it.
    dialog.cboxEANProd.userType("3");
    EXPECT_EQ(dialog.txtlEANProdWart.text(), "3");
    EXPECT_EQ(dialog.productChoice().ProductChangeSource, 0);
    dialog.cboxNazwaProd.userType("");
    choose(dialog.cboxNazwaProd, "б");
    EXPECT_THAT(lists(), ElementsAre("2", "б", "b3", "s1"));
  });
  EXPECT_THAT(test.takeBoxes(), IsEmpty());
}

/// Before the chain goes round and round, the event of one list has come to its end within it.
TEST_F(ChoosingAProduct, AnEventThatEndsWithinAnEndlessChainDoesntBeginAnother) {
  test.loadProducts({{"2", "б", "s0", "b0"}, {"1", "а", "s2", "b2"}, {"1", "а", "s2", "b0"}});
  test.show([&] {
    dialog.cboxKodSprzed.userChoose(0);
    EXPECT_THAT(test.takeBoxes(),
                ElementsAre("VIRDПроизошла ошибка в  cboxKodSprzed_Change|critical|OK|Out of "
                            "stack space"));
  });
}

// Lines without codes.

TEST_F(ChoosingAProduct, ALineWithoutACodeEmptiesTheListAndSelectsNoOtherSuchLine) {
  test.loadProducts({{"4600", "Вода"}, {"4601", "Чай", "s1", "b1"}, {"4602", "Кофе"}});
  test.show([&] {
    choose(dialog.cboxEANProd, "4601");
    choose(dialog.cboxEANProd, "4602");
    EXPECT_THAT(lists(), ElementsAre("4602", "Кофе", "", ""));
    choose(dialog.cboxNazwaProd, "Чай");
    dialog.cboxKodAPP.userType("");
    EXPECT_THAT(lists(), ElementsAre("4601", "Чай", "", "s1"));
    EXPECT_THAT(fields(), ElementsAre("4601", "Чай", "", "s1"));
  });
}

TEST_F(ChoosingAProduct, TheRowOfALineWithoutACodeIsAChoiceLikeAnyOther) {
  test.loadProducts({{"4600", "Вода"}, {"4601", "Чай", "s1", "b1"}});
  test.show([&] {
    choose(dialog.cboxEANProd, "4601");
    choose(dialog.cboxKodAPP, "");
    EXPECT_THAT(lists(), ElementsAre("4600", "Вода", "", ""));
  });
}

// The marks.

TEST_F(ChoosingAProduct, AMarkThatStayedKeepsItsBlocksInForce) {
  test.loadProducts({tea, coffee});
  test.show([&] {
    choose(dialog.cboxNazwaProd, "Чай");
    dialog.productChoice().ProductChangeSource = 3;  // as after a change of the name that failed
    choose(dialog.cboxEANProd, "4602");
    EXPECT_THAT(lists(), ElementsAre("4602", "Чай", "b2", "s2"));
    EXPECT_EQ(dialog.productChoice().ProductChangeSource, 3);
    choose(dialog.cboxNazwaProd, "Кофе");
    EXPECT_EQ(dialog.productChoice().ProductChangeSource, 0);
  });
}

}  // namespace
}  // namespace awizo::test
