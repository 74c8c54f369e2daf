#include "formats/row_check.h"

#include <map>
#include <string>

#include "support/cells.h"
#include "support/error_of.h"
#include "support/test_editor.h"
#include "tables/columns/columns.h"

namespace awizo::test {
namespace {

/// A line that passes every rule, in numbers that both locales read.
std::vector<std::string> goodLine() {
  std::vector<std::string> cells = lineCells();
  cells[GRD_POZ_LP] = "1";
  cells[GRD_POZ_EAN] = "5901234123457";
  cells[GRD_POZ_QTY_ORDERED] = "5";
  cells[GRD_POZ_QTY_DESPATCHED] = "4";
  cells[GRD_POZ_PRICE] = "2";
  cells[GRD_POZ_NET_AMOUNT] = "8";
  cells[GRD_POZ_CDN] = "12345678/010108/1234567";
  return cells;
}

struct CellCase {
  int column;
  const char* text;
};

struct RowCheck : ::testing::Test {
  TestEditor test;
  Table& table = test.form.grdPozycje;

  bool check(const CellCase& change) {
    std::vector<std::string> cells = goodLine();
    cells[static_cast<std::size_t>(change.column)] = change.text;
    TestEditor::fill(table, {cells});
    test.form.BadColumnName = "earlier";
    return CheckGridRow(test.editor, 1);
  }

  std::vector<Colour> colours(int row) const {
    std::vector<Colour> found;
    found.reserve(static_cast<std::size_t>(table.columns()));
    for (int column = 0; column < table.columns(); ++column) {
      found.push_back(table.look(row, column).background);
    }
    return found;
  }

  void paint(int row, Colour colour) {
    for (int column = 0; column < table.columns(); ++column) {
      table.setBackground(row, column, colour);
    }
  }
};

TEST_F(RowCheck, PassesAGoodLineAndLeavesTheBadColumnName) {
  EXPECT_TRUE(check({GRD_POZ_LP, "x"}));
  EXPECT_EQ(test.form.BadColumnName, "earlier");
}

TEST_F(RowCheck, TheFirstFaultTellsItsColumnAndLeavesTheBadColumnName) {
  for (const int column : {GRD_POZ_EAN, GRD_POZ_QTY_ORDERED, GRD_POZ_QTY_DESPATCHED, GRD_POZ_PRICE,
                           GRD_POZ_NET_AMOUNT, GRD_POZ_CDN}) {
    check({column, column == GRD_POZ_CDN ? "1/010108/1234567" : "x"});
    const std::string name = test.form.BadColumnName;
    test.form.BadColumnName = "earlier";
    const std::optional<RowFault> fault = firstFault(test.editor, 1);
    ASSERT_TRUE(fault) << column;
    EXPECT_EQ(fault->column, column);
    EXPECT_EQ(fault->name, name);
    EXPECT_EQ(test.form.BadColumnName, "earlier");
  }
  check({GRD_POZ_LP, "x"});
  EXPECT_FALSE(firstFault(test.editor, 1));
}

TEST_F(RowCheck, EmptyCellsPassWhereAnEmptyOneIsAllowed) {
  for (const int column :
       {GRD_POZ_QTY_ORDERED, GRD_POZ_PRICE, GRD_POZ_NET_AMOUNT, GRD_POZ_CDN, GRD_POZ_NAME}) {
    EXPECT_TRUE(check({column, ""})) << column;
  }
}

TEST_F(RowCheck, BlanksAreNoEmptyCell) {
  for (const auto& [column, name] :
       std::map<int, std::string>{{GRD_POZ_QTY_ORDERED, "Zamowiona ilosc"},
                                  {GRD_POZ_PRICE, "Cena netto"},
                                  {GRD_POZ_NET_AMOUNT, "Wartosc netto"}}) {
    EXPECT_FALSE(check({column, " "})) << name;
    EXPECT_EQ(test.form.BadColumnName, name);
  }
}

TEST_F(RowCheck, AnEmptyOrWrongEanFails) {
  for (const char* ean : {"", "ABC", "59012341234A7"}) {
    EXPECT_FALSE(check({GRD_POZ_EAN, ean})) << ean;
    EXPECT_EQ(test.form.BadColumnName, "EAN");
  }
}

TEST_F(RowCheck, AnOrderedQuantityThatIsNoNumberFails) {
  EXPECT_FALSE(check({GRD_POZ_QTY_ORDERED, "many"}));
  EXPECT_EQ(test.form.BadColumnName, "Zamowiona ilosc");
}

TEST_F(RowCheck, ADespatchedQuantityThatIsEmptyOrNoNumberFails) {
  for (const char* quantity : {"", "many"}) {
    EXPECT_FALSE(check({GRD_POZ_QTY_DESPATCHED, quantity})) << quantity;
    EXPECT_EQ(test.form.BadColumnName, "Potwierdzana ilosc");
  }
}

TEST_F(RowCheck, APriceThatIsNoNumberFails) {
  EXPECT_FALSE(check({GRD_POZ_PRICE, "cheap"}));
  EXPECT_EQ(test.form.BadColumnName, "Cena netto");
}

TEST_F(RowCheck, ANetAmountThatIsNoNumberFails) {
  EXPECT_FALSE(check({GRD_POZ_NET_AMOUNT, "little"}));
  EXPECT_EQ(test.form.BadColumnName, "Wartosc netto");
}

TEST_F(RowCheck, TellsWhichFieldOfTheCustomsNumberFails) {
  EXPECT_FALSE(check({GRD_POZ_CDN, "123/010108/1234567"}));
  EXPECT_EQ(test.form.BadColumnName, "CustomsDeclarationNumber_1");
  EXPECT_FALSE(check({GRD_POZ_CDN, "12345678/0101/1234567"}));
  EXPECT_EQ(test.form.BadColumnName, "CustomsDeclarationNumber_2");
  EXPECT_FALSE(check({GRD_POZ_CDN, "12345678/010108/123"}));
  EXPECT_EQ(test.form.BadColumnName, "CustomsDeclarationNumber_3");
  EXPECT_FALSE(check({GRD_POZ_CDN, "12345678/010108/1234567/ABCD"}));
  EXPECT_EQ(test.form.BadColumnName, "CustomsDeclarationNumber_4");
}

TEST_F(RowCheck, TheFirstRuleThatFailsIsTold) {
  std::vector<std::string> cells(lineCells().size(), "no number");
  std::vector<std::string> told;
  for (const int column : {GRD_POZ_EAN, GRD_POZ_QTY_ORDERED, GRD_POZ_QTY_DESPATCHED, GRD_POZ_PRICE,
                           GRD_POZ_NET_AMOUNT}) {
    TestEditor::fill(table, {cells});
    EXPECT_FALSE(CheckGridRow(test.editor, 1));
    told.push_back(test.form.BadColumnName);
    cells[static_cast<std::size_t>(column)] = "1";
  }
  EXPECT_THAT(told, ::testing::ElementsAre("EAN", "Zamowiona ilosc", "Potwierdzana ilosc",
                                           "Cena netto", "Wartosc netto"));
}

TEST_F(RowCheck, ReadsNumbersOfACommaLocale) {
  EXPECT_TRUE(check({GRD_POZ_QTY_ORDERED, "1,500"}));
  EXPECT_FALSE(check({GRD_POZ_QTY_ORDERED, "1.500"}));
  // The despatched quantity alone may have a point: it counts as a comma.
  EXPECT_TRUE(check({GRD_POZ_QTY_DESPATCHED, "1.500"}));
  EXPECT_FALSE(check({GRD_POZ_PRICE, "1.50"}));
}

TEST(RowCheckInAPointLocale, ReadsItsNumbers) {
  TestEditor test("en_US");
  std::vector<std::string> cells = goodLine();
  cells[GRD_POZ_QTY_ORDERED] = "1.500";
  cells[GRD_POZ_QTY_DESPATCHED] = "1.500";
  cells[GRD_POZ_PRICE] = "1,50";
  TestEditor::fill(test.form.grdPozycje, {cells});
  EXPECT_TRUE(CheckGridRow(test.editor, 1));
}

TEST_F(RowCheck, LooksAtItsOwnRow) {
  std::vector<std::string> bad = goodLine();
  bad[GRD_POZ_EAN] = "ABC";
  TestEditor::fill(table, {goodLine(), bad});
  EXPECT_TRUE(CheckGridRow(test.editor, 1));
  EXPECT_FALSE(CheckGridRow(test.editor, 2));
}

TEST_F(RowCheck, BeyondTheReachOfTheCellIndexIsAnOverflow) {
  table.setRows(1425);
  table.setCell(1424, GRD_POZ_EAN, "1");
  table.setCell(1424, GRD_POZ_QTY_DESPATCHED, "1");
  EXPECT_EQ(errorNumberOf([&] { CheckGridRow(test.editor, 1424); }), 6);
}

TEST_F(RowCheck, RepaintingMakesPassingLinesWhiteInColumns1To21) {
  TestEditor::fill(table, {goodLine(), goodLine()});
  test.session.LineCount = 2;
  paint(1, pink);
  paint(2, pink);
  RepaintValidRows(test.editor);
  std::vector<Colour> expected(lineColumnCount, white);
  expected[0] = pink;
  expected[22] = pink;
  EXPECT_EQ(colours(1), expected);
  EXPECT_EQ(colours(2), expected);
}

TEST_F(RowCheck, RepaintingLeavesFailingLinesAlone) {
  std::vector<std::string> bad = goodLine();
  bad[GRD_POZ_EAN] = "ABC";
  TestEditor::fill(table, {bad, bad});
  test.session.LineCount = 2;
  paint(1, pink);
  RepaintValidRows(test.editor);
  EXPECT_EQ(colours(1), std::vector<Colour>(lineColumnCount, pink));
  EXPECT_EQ(colours(2), std::vector<Colour>(lineColumnCount, white));
}

TEST_F(RowCheck, RepaintingKeepsTheCurrentCellAndTheCount) {
  TestEditor::fill(table, {goodLine(), goodLine()});
  test.session.LineCount = 2;
  test.form.ValidLineCount = 7;
  table.setRow(2);
  table.setColumn(4);
  RepaintValidRows(test.editor);
  EXPECT_EQ(table.row(), 2);
  EXPECT_EQ(table.column(), 4);
  EXPECT_EQ(test.form.ValidLineCount, 7);
}

TEST_F(RowCheck, CountingCountsPassingLinesAndComputesTheTotals) {
  std::vector<std::string> bad = goodLine();
  bad[GRD_POZ_EAN] = "ABC";
  TestEditor::fill(table, {goodLine(), bad, goodLine()});
  test.session.LineCount = 3;
  test.form.ValidLineCount = 9;
  table.setRow(2);
  table.setColumn(4);
  CountValidRows(test.editor);
  EXPECT_EQ(test.form.ValidLineCount, 2);
  EXPECT_EQ(test.form.grdSuma.cell(1, GRD_SUMA_LINE_COUNT), "3");
  EXPECT_EQ(test.form.grdSuma.cell(1, GRD_SUMA_QTY_DESPATCHED), "12,000");
  EXPECT_EQ(test.form.grdSuma.cell(1, GRD_SUMA_NET_AMOUNT), "24,00");
  EXPECT_EQ(table.row(), 2);
  EXPECT_EQ(table.column(), 4);
}

TEST_F(RowCheck, CountingWithoutLinesGives0AndLeavesTheTotals) {
  test.form.ValidLineCount = 9;
  test.form.grdSuma.setCell(1, GRD_SUMA_LINE_COUNT, "5");
  CountValidRows(test.editor);
  EXPECT_EQ(test.form.ValidLineCount, 0);
  EXPECT_EQ(test.form.grdSuma.cell(1, GRD_SUMA_LINE_COUNT), "5");
}

TEST_F(RowCheck, CountingShowsNothingForFailingLines) {
  TestEditor::fill(table, {lineCells()});
  test.session.LineCount = 1;
  CountValidRows(test.editor);
  EXPECT_EQ(test.form.ValidLineCount, 0);
  EXPECT_TRUE(test.face.boxes().empty());
}

}  // namespace
}  // namespace awizo::test
