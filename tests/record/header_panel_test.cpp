#include "session/record/header_panel.h"

#include "support/test_editor.h"

namespace awizo::test {
namespace {

using testing::ElementsAre;

TEST(Countries, AreCodesByTheirIndex) {
  const std::vector<std::string> codes{"RU", "BY", "KZ", "CN", "LV", "LT", "PL", "UA", "FI", "EE"};
  for (std::int16_t index = 0; index < 10; ++index) {
    EXPECT_EQ(symbolKraj(index, "DE"), codes[static_cast<std::size_t>(index)]);
    EXPECT_EQ(indexKraj(codes[static_cast<std::size_t>(index)]), index);
  }
}

TEST(Countries, ATypedTextIsItsOwnCode) {
  EXPECT_EQ(symbolKraj(-1, "Deutschland"), "Deutschland");
  EXPECT_EQ(symbolKraj(-1, ""), "");
}

TEST(Countries, PastTheListThereIsNoCode) {
  EXPECT_EQ(symbolKraj(10, "DE"), "");
  EXPECT_EQ(symbolKraj(32767, "DE"), "");
  EXPECT_EQ(symbolKraj(-2, "DE"), "");
}

TEST(Countries, CaseMattersInACode) {
  EXPECT_EQ(indexKraj("ru"), -1);
  EXPECT_EQ(indexKraj(""), -1);
  EXPECT_EQ(indexKraj("DE"), -1);
}

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

struct HeaderTest : testing::Test {
  HeaderTest() {
    test.session.BuyerILN = "4607000000017";
    test.session.BuyerName = "ООО Покупатель";
    test.session.SellerILN = "4607000000024";
    test.session.SellerName = "ЗАО Продавец";
    test.form.cboxPackageDescription.setRows(
        {"Возвратная тара(EAN код)", "Тара ISO 1 - 1/1 Евро Тара (EAN код)", "Упаковка"});
    test.form.btnUsun.setEnabled(false);
    test.form.btnEdytuj.setEnabled(false);
    test.form.txtDataAwiza.setDate(std::nullopt);
    test.form.txtGoodsIdentity.setText("354107380000001051");
  }

  TestEditor test;
};

TEST_F(HeaderTest, ShowsThePartiesAndTheDefaults) {
  SetHeader(test.editor);
  EXPECT_EQ(test.form.lblILNKupWart.caption(), "4607000000017");
  EXPECT_EQ(test.form.lblNameKupWart.caption(), "ООО Покупатель");
  EXPECT_EQ(test.form.lblILNSprzedWart.caption(), "4607000000024");
  EXPECT_EQ(test.form.lblNameSprzedWart.caption(), "ЗАО Продавец");
  EXPECT_EQ(test.form.txtDataAwiza.date(), makeDate(2026, 11, 21));
  EXPECT_EQ(test.form.txtDespatchAdviceTime.time(), std::nullopt);
  EXPECT_EQ(test.form.cboxPackageDescription.index(), 2);
  EXPECT_EQ(test.form.cboxPackageDescription.text(), "Упаковка");
  EXPECT_EQ(test.form.txtGoodsIdentity.text(), "0");
  EXPECT_TRUE(test.form.btnUsun.enabled());
  EXPECT_TRUE(test.form.btnEdytuj.enabled());
  EXPECT_TRUE(test.face.boxes().empty());
}

TEST_F(HeaderTest, AnErrorIsShownAndLeavesTheHeaderAsFarAsItGot) {
  test.form.cboxPackageDescription.clear();
  SetHeader(test.editor);
  EXPECT_EQ(
      describe(test.face.boxes()),
      std::vector<std::string>{"Произошла ошибка в : SetHeader()|critical|OK|"
                               "Could not set the ListIndex property. Invalid property value."});
  EXPECT_EQ(test.form.lblNameKupWart.caption(), "ООО Покупатель");
  EXPECT_EQ(test.form.txtDataAwiza.date(), makeDate(2026, 11, 21));
  EXPECT_EQ(test.form.txtGoodsIdentity.text(), "354107380000001051");
  EXPECT_FALSE(test.form.btnUsun.enabled());
}

}  // namespace
}  // namespace awizo::test
