#include "tables/clear_tables.h"

#include "support/test_editor.h"
#include "tables/columns/columns.h"

namespace awizo::test {
namespace {

using testing::Each;

struct ClearTest : testing::Test {
  void fill(Table& table) {
    table.setCell(0, "heading");
    table.setRows(4);
    for (int row = 1; row < 4; ++row) {
      for (int column = 0; column < table.columns(); ++column) {
        table.setCell(row, column, "x");
        table.setBackground(row, column, pink);
      }
    }
    table.setRow(3);
    table.setColumn(2);
  }

  TestEditor test;
  AwizoForm& form = test.form;
};

TEST_F(ClearTest, LinesKeepOneEmptyWhiteRow) {
  fill(form.grdPozycje);
  test.session.LineCount = 3;
  form.ValidLineCount = 2;
  ClearGrdPozycje(test.editor);
  EXPECT_EQ(form.grdPozycje.rows(), 2);
  EXPECT_EQ(form.grdPozycje.row(), 1);
  EXPECT_THAT(TestEditor::row(form.grdPozycje, 1), Each(""));
  EXPECT_EQ(form.grdPozycje.look(1, 0).background, pink) << "column 0 keeps its own";
  for (int column = 1; column < lineColumnCount; ++column) {
    EXPECT_EQ(form.grdPozycje.look(1, column).background, white) << column;
  }
  EXPECT_EQ(test.session.LineCount, 0);
  EXPECT_EQ(form.ValidLineCount, 0);
  EXPECT_EQ(form.grdPozycje.cell(0, 0), "heading");
}

TEST_F(ClearTest, PackagesKeepOneEmptyRowAndTheSerialsIssued) {
  fill(form.grdOpakowania);
  test.session.IloscPozycjiOpak = 3;
  form.LastPackageSerial = 4;
  ClearGrdOpakowania(test.editor);
  EXPECT_EQ(form.grdOpakowania.rows(), 2);
  EXPECT_EQ(form.grdOpakowania.row(), 1);
  EXPECT_THAT(TestEditor::row(form.grdOpakowania, 1), Each(""));
  EXPECT_EQ(test.session.IloscPozycjiOpak, 0);
  EXPECT_EQ(form.LastPackageSerial, 4);
}

TEST_F(ClearTest, TotalsKeepOneEmptyRow) {
  fill(form.grdSuma);
  ClearGrdSuma(test.editor);
  EXPECT_EQ(form.grdSuma.rows(), 2);
  EXPECT_THAT(TestEditor::row(form.grdSuma, 1), Each(""));
  EXPECT_EQ(form.grdSuma.cell(0, 0), "heading");
}

TEST_F(ClearTest, LinesAndPackagesLeaveTheHeadingRowForTheEmptyOne) {
  form.grdPozycje.setRow(0);
  form.grdOpakowania.setRow(0);
  ClearGrdPozycje(test.editor);
  ClearGrdOpakowania(test.editor);
  EXPECT_EQ(form.grdPozycje.row(), 1);
  EXPECT_EQ(form.grdOpakowania.row(), 1);
}

TEST_F(ClearTest, EachLeavesTheOtherTables) {
  fill(form.grdOpakowania);
  fill(form.grdSuma);
  test.session.IloscPozycjiOpak = 3;
  ClearGrdPozycje(test.editor);
  EXPECT_EQ(form.grdOpakowania.rows(), 4);
  EXPECT_EQ(form.grdSuma.rows(), 4);
  EXPECT_EQ(test.session.IloscPozycjiOpak, 3);
}

}  // namespace
}  // namespace awizo::test
