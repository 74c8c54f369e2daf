#include "tables/totals.h"

#include "support/cells.h"
#include "support/test_editor.h"
#include "tables/columns/columns.h"

namespace awizo::test {
namespace {

using testing::ElementsAre;
using Boxes = std::vector<std::string>;

/// A line of the document with what totals and weights look at.
struct LineValues {
  std::string despatched;
  std::string netAmount;
  std::string weight;
};

struct TotalsEditor : TestEditor {
  explicit TotalsEditor(const std::vector<LineValues>& lines, std::string_view localeName = "ru_RU")
      : TestEditor(localeName) {
    std::vector<std::vector<std::string>> rows;
    for (const LineValues& line : lines) {
      std::vector<std::string> row = lineCells();
      row[GRD_POZ_QTY_DESPATCHED] = line.despatched;
      row[GRD_POZ_NET_AMOUNT] = line.netAmount;
      row[GRD_POZ_WEIGHT] = line.weight;
      rows.push_back(row);
    }
    fill(form.grdPozycje, rows);
    session.LineCount = static_cast<std::int16_t>(lines.size());
  }

  std::vector<std::string> totals() const { return row(form.grdSuma, 1); }
};

TEST(Totals, AreTheSumsOfQuantityAndNetAmount) {
  TotalsEditor test({{"1,500", "10,25", ""}, {"2,250", "0,50", ""}});
  PoprawGrdSuma(test.editor);
  EXPECT_THAT(test.totals(), ElementsAre("2", "3,750", "10,75"));
}

TEST(Totals, HaveThePointOfAPointLocale) {
  TotalsEditor test({{"1.500", "10.25", ""}, {"2.250", "0.50", ""}}, "en_US");
  PoprawGrdSuma(test.editor);
  EXPECT_THAT(test.totals(), ElementsAre("2", "3.750", "10.75"));
}

TEST(Totals, EmptyCellsCountNothing) {
  TotalsEditor test({{"1,000", "", ""}, {"", "", ""}});
  PoprawGrdSuma(test.editor);
  EXPECT_THAT(test.totals(), ElementsAre("2", "1,000", "0,00"));
}

TEST(Totals, AreRoundedOnFifteenDigits) {
  TotalsEditor test({{"0,1", "1,005", ""}, {"0,2", "0", ""}});
  PoprawGrdSuma(test.editor);
  EXPECT_THAT(test.totals(), ElementsAre("2", "0,300", "1,01"));
}

TEST(Totals, OfLargeLinesHaveNoExponent) {
  TotalsEditor test({{"900000000000000", "", ""}, {"900000000000000", "", ""}});
  PoprawGrdSuma(test.editor);
  EXPECT_THAT(test.totals(), ElementsAre("2", "1800000000000000,000", "0,00"));
}

TEST(Totals, StayWithoutLines) {
  TotalsEditor test({});
  TestEditor::fill(test.form.grdSuma, {{"7", "8", "9"}});
  PoprawGrdSuma(test.editor);
  EXPECT_THAT(test.totals(), ElementsAre("7", "8", "9"));
}

TEST(Totals, LookAtAsManyRowsAsThereAreLines) {
  TotalsEditor test({{"1", "1", ""}, {"2", "2", ""}, {"4", "4", ""}});
  test.session.LineCount = 2;
  PoprawGrdSuma(test.editor);
  EXPECT_THAT(test.totals(), ElementsAre("2", "3,000", "3,00"));
}

TEST(Totals, LeaveTheCurrentCellOnTheLastRowColumnEleven) {
  TotalsEditor test({{"1", "1", ""}, {"2", "2", ""}, {"4", "4", ""}});
  PoprawGrdSuma(test.editor);
  EXPECT_EQ(test.form.grdPozycje.row(), 3);
  EXPECT_EQ(test.form.grdPozycje.column(), 11);
}

TEST(Totals, LeaveEveryCellThatTheyReadAndTheOneThatWasCurrent) {
  TotalsEditor test({{"1", "1", ""}, {"2", "2", ""}});
  Table& lines = test.form.grdPozycje;
  std::vector<std::pair<int, int>> left;
  lines.onLeaveCell = [&] { left.emplace_back(lines.row(), lines.column()); };
  PoprawGrdSuma(test.editor);
  using Cell = std::pair<int, int>;
  EXPECT_THAT(left, ElementsAre(Cell(1, 0), Cell(1, 4), Cell(1, 11), Cell(2, 11), Cell(2, 4)));
}

TEST(Totals, ANumberThatIsNoneIsShownAndLeavesThemPartlyWritten) {
  TotalsEditor test({{"1", "1", ""}, {"ABC", "2", ""}});
  TestEditor::fill(test.form.grdSuma, {{"7", "8", "9"}});
  PoprawGrdSuma(test.editor);
  EXPECT_EQ(describe(test.face.boxes()),
            Boxes{"Произошла ошибка в  PoprawGrdSuma()|critical|OK|Type mismatch"});
  EXPECT_THAT(test.totals(), ElementsAre("2", "", ""));
}

TEST(Totals, MoreLinesThanRowsAreAnError) {
  TotalsEditor test({{"1", "1", ""}});
  test.session.LineCount = 2;
  PoprawGrdSuma(test.editor);
  EXPECT_EQ(describe(test.face.boxes()),
            Boxes{"Произошла ошибка в  PoprawGrdSuma()|critical|OK|Invalid Row value"});
}

TEST(Totals, OfAFullTable) {
  TotalsEditor test(std::vector<LineValues>(1423, {"1,500", "2,25", ""}));
  PoprawGrdSuma(test.editor);
  EXPECT_THAT(test.totals(), ElementsAre("1423", "2134,500", "3201,75"));
}

TEST(TotalWeight, IsTheSumOverTheLines) {
  TotalsEditor test({{"2", "", "1,5"}, {"3,000", "", "0,250"}});
  EXPECT_EQ(MyCalculateWeight(test.editor), "3,75");
  EXPECT_TRUE(test.form.WeightComplete);
  EXPECT_EQ(test.form.lblNiepelnaWagaKom.caption(), "");
  EXPECT_EQ(test.form.grdPozycje.row(), 2);
  EXPECT_EQ(test.form.grdPozycje.cell(1, GRD_POZ_WEIGHT), "1,5") << "cells stay as they are";
}

TEST(TotalWeight, HasThePointOfAPointLocale) {
  TotalsEditor test({{"2", "", "1.5"}, {"3,000", "", "0,250"}}, "en_US");
  EXPECT_EQ(MyCalculateWeight(test.editor), "3.75");
}

TEST(TotalWeight, WarnsOfALineWithoutWeight) {
  TotalsEditor test({{"2", "", "1,5"}, {"3", "", ""}});
  EXPECT_EQ(MyCalculateWeight(test.editor), "3");
  EXPECT_FALSE(test.form.WeightComplete);
  EXPECT_EQ(test.form.lblNiepelnaWagaKom.caption(), "Не для всех позиций указан вес");
  EXPECT_TRUE(test.face.boxes().empty());
}

TEST(TotalWeight, OfNoLinesIsZeroAndComplete) {
  TotalsEditor test({});
  EXPECT_EQ(MyCalculateWeight(test.editor), "0");
  EXPECT_TRUE(test.form.WeightComplete);
  EXPECT_EQ(test.form.lblNiepelnaWagaKom.caption(), "");
}

TEST(TotalWeight, BeyondTheFlatIndexRaisesOverflow) {
  TotalsEditor test(std::vector<LineValues>(1425, {"1", "", "1"}));
  EXPECT_THROW(MyCalculateWeight(test.editor), RunTimeError);
  EXPECT_EQ(test.form.grdPozycje.row(), 1425);
}

struct PartWeightTest : testing::Test {
  PartWeightTest() { test.form.WeightComplete = true; }

  double weigh(std::string quantity, std::string weight) {
    return MyCalculatePartWeight(test.editor, quantity, weight);
  }

  TestEditor test;
};

TEST_F(PartWeightTest, RoundsTheUnitWeightToTwoDecimalsFirst) {
  EXPECT_EQ(weigh("2", "1,255"), 2.52);
  EXPECT_EQ(weigh("2", "1.255"), 2.52);
  EXPECT_TRUE(test.form.WeightComplete);
}

TEST_F(PartWeightTest, RoundsTheResultToThreeDecimals) {
  EXPECT_EQ(weigh("0,333", "0,33"), 0.11);
  EXPECT_EQ(weigh("1,111", "1,11"), 1.233);
}

TEST_F(PartWeightTest, RoundsTheQuantityToThreeDecimalsFirst) {
  EXPECT_EQ(weigh("1,0004", "10"), 10);
}

TEST_F(PartWeightTest, WithoutAWeightIsZeroAndIncomplete) {
  for (const char* weight : {"0", "-1", "", "ABC", "0,004"}) {
    test.form.WeightComplete = true;
    EXPECT_EQ(weigh("2", weight), 0) << weight;
    EXPECT_FALSE(test.form.WeightComplete) << weight;
  }
}

TEST_F(PartWeightTest, WithoutAQuantityIsZeroAndIncomplete) {
  EXPECT_EQ(weigh("", "1"), 0);
  EXPECT_FALSE(test.form.WeightComplete);
  EXPECT_TRUE(test.face.boxes().empty());
}

TEST_F(PartWeightTest, OfAZeroQuantityIsZeroAndComplete) {
  EXPECT_EQ(weigh("0", "1"), 0);
  EXPECT_TRUE(test.form.WeightComplete);
}

TEST_F(PartWeightTest, TooLargeIsZeroAndIncomplete) {
  EXPECT_EQ(weigh("1e200", "1e200"), 0);
  EXPECT_FALSE(test.form.WeightComplete);
}

TEST_F(PartWeightTest, ChangesTheCallersTexts) {
  std::string quantity = "2.5";
  std::string weight = "1.5";
  EXPECT_EQ(MyCalculatePartWeight(test.editor, quantity, weight), 3.75);
  EXPECT_EQ(quantity, "2,5");
  EXPECT_EQ(weight, "1,5");
}

}  // namespace
}  // namespace awizo::test
