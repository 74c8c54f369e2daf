#include "tables/flat_index.h"

#include "support/error_of.h"
#include "support/test_editor.h"
#include "tables/columns/columns.h"

namespace awizo::test {
namespace {

struct FlatIndexTest : testing::Test {
  TestEditor test;
  const Editor& editor = test.editor;
};

TEST_F(FlatIndexTest, IsRowTimesColumnsPlusColumn) {
  EXPECT_EQ(IndexGrdPozycje(editor, 0, 0), 0);
  EXPECT_EQ(IndexGrdPozycje(editor, 1, 4), 27);
  EXPECT_EQ(IndexGrdOpak(editor, 2, 13), 43);
  EXPECT_EQ(IndexGrdSuma(editor, 1, 2), 5);
}

TEST_F(FlatIndexTest, NamesTheCellOfThatRowAndColumn) {
  test.form.grdPozycje.setCell(IndexGrdPozycje(editor, 1, GRD_POZ_NAME), "Молоко");
  EXPECT_EQ(test.form.grdPozycje.cell(1, 2), "Молоко");
}

TEST_F(FlatIndexTest, OfTheLinesEndsInRow1424) {
  EXPECT_EQ(IndexGrdPozycje(editor, 1423, 21), 32750);
  EXPECT_EQ(IndexGrdPozycje(editor, 1424, 15), 32767);
  EXPECT_EQ(errorOf([&] { IndexGrdPozycje(editor, 1424, 16); }), "6 Overflow");
}

TEST_F(FlatIndexTest, OfThePackagesEndsInRow2184) {
  EXPECT_EQ(IndexGrdOpak(editor, 2183, 13), 32758);
  EXPECT_EQ(IndexGrdOpak(editor, 2184, 7), 32767);
  EXPECT_EQ(errorOf([&] { IndexGrdOpak(editor, 2184, 8); }), "6 Overflow");
}

TEST_F(FlatIndexTest, OfTheTotalsEndsInRow10922) {
  EXPECT_EQ(IndexGrdSuma(editor, 10922, 1), 32767);
  EXPECT_EQ(errorOf([&] { IndexGrdSuma(editor, 10922, 2); }), "6 Overflow");
}

TEST_F(FlatIndexTest, DoesNotWrapAtTheLargestRow) {
  EXPECT_EQ(errorOf([&] { IndexGrdPozycje(editor, 32767, 32767); }), "6 Overflow");
  EXPECT_EQ(errorOf([&] { IndexGrdPozycje(editor, -32768, 0); }), "6 Overflow");
}

TEST_F(FlatIndexTest, IsComputedBeforeAnyBoundOfTheTable) {
  EXPECT_EQ(test.form.grdPozycje.rows(), 2);
  EXPECT_EQ(IndexGrdPozycje(editor, 1000, 0), 23000);
}

TEST_F(FlatIndexTest, ReadsTheEmptyRowOfAnEmptyDocument) {
  EXPECT_EQ(test.form.grdPozycje.cell(IndexGrdPozycje(editor, 1, 1)), "");
  EXPECT_EQ(test.form.grdOpakowania.cell(IndexGrdOpak(editor, 1, 1)), "");
  EXPECT_EQ(test.form.grdSuma.cell(IndexGrdSuma(editor, 1, 1)), "");
}

TEST_F(FlatIndexTest, OfADialogsTableTakesItsColumns) {
  Form dialog(test.screen, "DlgDodaj");
  const Table table(dialog, "grdPozycje", 5);
  EXPECT_EQ(flatIndex(table, 3, 2), 17);
}

}  // namespace
}  // namespace awizo::test
