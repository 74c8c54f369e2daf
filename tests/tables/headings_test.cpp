#include "support/test_editor.h"
#include "tables/set_up_tables.h"

namespace awizo::test {
namespace {

using testing::ElementsAre;

std::vector<std::string> headings(const Table& table) { return TestEditor::row(table, 0); }

TEST(Headings, OfTheThreeTables) {
  TestEditor test;
  UstawNaglowki(test.editor);
  EXPECT_THAT(headings(test.form.grdOpakowania),
              ElementsAre("№ п.п", "", "ID упаковки", "Описание упаковки", "Уровень", "", "", "",
                          "", "", "", "", "", "ID упаковки", ""));
  EXPECT_THAT(
      headings(test.form.grdPozycje),
      ElementsAre("№ п.п", "EAN продукта", "Название продукта", "Количество заказа",
                  "Количество отгружено", "Цена", "CodeByBuer", "CodeBySeller", "Weight",
                  "UnitOfMeasure", "OrderLineNumber", "NetAmount", "TaxRate", "TaxCategoryCode",
                  "ExpiryDate", "CountryOfOryginCode", "CustomsDeclarationNumber", "ProductionDate",
                  "Period", "PeriodFormat", "", "Упакованное кол-во", ""));
  EXPECT_THAT(
      headings(test.form.grdSuma),
      ElementsAre("Количество строк", "Общее количество отгруженного", "Название продукта"));
  EXPECT_TRUE(test.face.boxes().empty());
}

TEST(Headings, AreCentred) {
  TestEditor test;
  UstawNaglowki(test.editor);
  for (int column = 0; column <= 13; ++column) {
    EXPECT_EQ(test.form.grdOpakowania.look(0, column).alignment, Alignment::centre) << column;
  }
  for (int column = 0; column <= 21; ++column) {
    EXPECT_EQ(test.form.grdPozycje.look(0, column).alignment, Alignment::centre) << column;
  }
  for (int column = 0; column <= 2; ++column) {
    EXPECT_EQ(test.form.grdSuma.look(0, column).alignment, Alignment::centre) << column;
  }
  EXPECT_EQ(test.form.grdOpakowania.look(0, 14).alignment, Alignment::left);
  EXPECT_EQ(test.form.grdPozycje.look(0, 22).alignment, Alignment::left);
}

TEST(Headings, TotalsAreRightAlignedWithTheSelectionOnTheFirst) {
  TestEditor test;
  UstawNaglowki(test.editor);
  for (int column = 0; column <= 2; ++column) {
    EXPECT_EQ(test.form.grdSuma.look(1, column).alignment, Alignment::right) << column;
  }
  EXPECT_EQ(test.form.grdSuma.row(), 1);
  EXPECT_EQ(test.form.grdSuma.column(), 0);
}

TEST(Headings, LeaveTheSelectionInTheHeadingRowsOfTheOtherTables) {
  TestEditor test;
  UstawNaglowki(test.editor);
  EXPECT_EQ(test.form.grdOpakowania.row(), 0);
  EXPECT_EQ(test.form.grdOpakowania.column(), 13);
  EXPECT_EQ(test.form.grdPozycje.row(), 0);
  EXPECT_EQ(test.form.grdPozycje.column(), 21);
}

TEST(Headings, AnErrorIsShownAndEndsThem) {
  TestEditor test;
  // A table without its data row has no row to hold the totals.
  test.form.grdSuma.setFixedRows(0);
  test.form.grdSuma.setRows(1);
  UstawNaglowki(test.editor);
  const MessageBox& box = test.face.lastBox();
  EXPECT_EQ(box.title, "Произошла ошибка в  UstawNaglowki()");
  EXPECT_EQ(box.text, "Invalid Row value");
  EXPECT_EQ(box.icon, BoxIcon::critical);
  EXPECT_EQ(box.buttons, BoxButtons::ok);
  EXPECT_EQ(test.form.grdSuma.cell(0, 2), "Название продукта") << "what was written stays";
}

}  // namespace
}  // namespace awizo::test
