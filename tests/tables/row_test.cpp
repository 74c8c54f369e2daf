#include "tables/row.h"

#include "support/error_of.h"
#include "support/test_editor.h"
#include "tables/columns/columns.h"

namespace awizo::test {
namespace {

TEST(Rows, AreReadAndWrittenByColumn) {
  TestEditor test;
  test.form.grdPozycje.setRows(4);
  const Row line = lineRow(test.editor, 3);
  line.set(GRD_POZ_NAME, "Молоко");
  EXPECT_EQ(line.cell(GRD_POZ_NAME), "Молоко");
  EXPECT_EQ(test.form.grdPozycje.cell(3, GRD_POZ_NAME), "Молоко");
  EXPECT_EQ(line.number(), 3);
}

TEST(Rows, AreOfTheirOwnTable) {
  TestEditor test;
  lineRow(test.editor, 1).set(0, "line");
  packageRow(test.editor, 1).set(0, "package");
  totalsRow(test.editor).set(0, "total");
  EXPECT_EQ(test.form.grdPozycje.cell(1, 0), "line");
  EXPECT_EQ(test.form.grdOpakowania.cell(1, 0), "package");
  EXPECT_EQ(test.form.grdSuma.cell(1, 0), "total");
}

TEST(Rows, EndWhereTheFlatIndexDoes) {
  TestEditor test;
  test.form.grdPozycje.setRows(1500);
  const Row last = lineRow(test.editor, 1424);
  last.set(GRD_POZ_COUNTRY, "RU");
  EXPECT_EQ(last.cell(GRD_POZ_COUNTRY), "RU");
  EXPECT_EQ(errorOf([&] { last.set(GRD_POZ_CDN, "1"); }), "6 Overflow");
  EXPECT_EQ(errorOf([&] { (void)last.cell(GRD_POZ_CDN); }), "6 Overflow");
  EXPECT_EQ(errorNumberOf([&] { (void)lineRow(test.editor, 40000).cell(0); }), 6);
}

TEST(Rows, ThatAreNotThereAreAnError) {
  TestEditor test;
  EXPECT_EQ(errorNumberOf([&] { (void)packageRow(test.editor, 2).cell(0); }), 381);
}

}  // namespace
}  // namespace awizo::test
