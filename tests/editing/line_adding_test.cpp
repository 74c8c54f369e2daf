#include "support/control/desk.h"
#include "tables/upper/editing/line_commit.h"

namespace awizo::test {
namespace {

using ::testing::Contains;
using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class AddingALine : public ::testing::Test, public Desk {
 protected:
  explicit AddingALine(const char* localeName = "ru_RU") : Desk(localeName) {}

  /// Opens the dialog for a new line and looks at it.
  void look(const std::function<void()>& act) {
    face.onModal([&](Form& shown) {
      act();
      shown.userClose();
    });
    form.btnDodaj.userClick();
  }
};

struct AddingALineInAPointLocale : AddingALine {
  AddingALineInAPointLocale() : AddingALine("en_US") {}
};

TEST_F(AddingALine, TheDialogOpensEmpty) {
  addLine({.ean = "1", .name = "x", .ordered = "9", .despatched = "9"});
  lineDialog.txtKodKup.setText("old");
  lineDialog.txtKodSprzed.setText("old");
  lineDialog.txtCenaNetto.setText("old");
  lineDialog.txtAmount.setText("old");
  lineDialog.txtCDN1.setText("12345678");
  lineDialog.txtCDN3.setText("1234567");
  lineDialog.txtCDN4.setText("1");
  lineDialog.cboxJednostkaMiary.setText("old");
  lineDialog.comboCountry.setText("old");
  lineDialog.cboxKodVAT.setIndex(1);
  lineDialog.cboxStawkaVAT.setIndex(1);
  for (DropDownList* list : {&lineDialog.cboxNazwaProd, &lineDialog.cboxEANProd,
                             &lineDialog.cboxKodAPP, &lineDialog.cboxKodSprzed}) {
    list->setText("old");
  }
  lineDialog.dtProdDate.setDate(makeDate(2020, 1, 1));
  lineDialog.dtExpiryDate.setDate(makeDate(2020, 1, 1));
  lineDialog.dpCDN2.setDate(makeDate(2020, 1, 1));
  lineDialog.LinePeriod = lineDialog.LinePeriodFormat = "old";
  lineDialog.LineOrderNumber = lineDialog.LineWeight = "old";
  lineDialog.lblPackedQuantityValue.setCaption("old");
  form.OrderAnswer = true;

  look([&] {
    EXPECT_EQ(lineDialog.caption(), "Добавь продукт");
    EXPECT_EQ(lineDialog.lblPozycjaTow.caption(), "Позиция номер 2");
    EXPECT_EQ(lineDialog.btnDodaj.caption(), "&Добавить");
    for (const DropDownList* list :
         {&lineDialog.cboxNazwaProd, &lineDialog.cboxEANProd, &lineDialog.cboxKodAPP,
          &lineDialog.cboxKodSprzed, &lineDialog.cboxStawkaVAT, &lineDialog.cboxKodVAT,
          &lineDialog.cboxJednostkaMiary, &lineDialog.comboCountry}) {
      EXPECT_EQ(list->index(), -1) << list->name();
      EXPECT_EQ(list->text(), "") << list->name();
    }
    for (const TextField* field :
         {&lineDialog.txtNazwaProdWart, &lineDialog.txtlEANProdWart, &lineDialog.txtKodSprzed,
          &lineDialog.txtKodKup, &lineDialog.txtIloscZam, &lineDialog.txtIloscPotw,
          &lineDialog.txtCenaNetto, &lineDialog.txtAmount, &lineDialog.txtCDN1, &lineDialog.txtCDN3,
          &lineDialog.txtCDN4}) {
      EXPECT_EQ(field->text(), "") << field->name();
    }
    EXPECT_EQ(lineDialog.dtProdDate.date(), makeDate(2026, 11, 21));
    EXPECT_EQ(lineDialog.dtExpiryDate.date(), std::nullopt);
    EXPECT_EQ(lineDialog.dtExpiryDate.lastDate(), makeDate(2026, 11, 21));
    EXPECT_EQ(lineDialog.dpCDN2.date(), makeDate(2026, 11, 21));
    EXPECT_EQ(lineDialog.LinePeriod + lineDialog.LinePeriodFormat + lineDialog.LineOrderNumber +
                  lineDialog.LineWeight,
              "");
    EXPECT_TRUE(lineDialog.LineFromOrder);
    EXPECT_EQ(lineDialog.lblPackedQuantityValue.caption(), "0,000");
    EXPECT_TRUE(lineDialog.txtIloscZam.enabled());
    EXPECT_FALSE(form.enabled());
  });
  EXPECT_TRUE(form.enabled());
}

TEST_F(AddingALine, TheTableOfPackagesOpensWithItsHeadingsAlone) {
  lineDialog.touch().grdPozycje.setRows(4);
  lineDialog.grdPozycje.setCell(3, 1, "2");
  lineDialog.Command1.setEnabled(true);
  look([&] {
    const Table& table = lineDialog.grdPozycje;
    EXPECT_EQ(table.rows(), 2);
    EXPECT_EQ(TestEditor::row(table, 0),
              (std::vector<std::string>{"№ п.п", "ID упаковки", "Описание упаковки", "Уровень",
                                        "Количество"}));
    EXPECT_THAT(TestEditor::row(table, 1), Each(""));
    EXPECT_EQ(table.row(), 0);
    for (int column = 0; column < 5; ++column) {
      EXPECT_EQ(table.look(0, column).alignment, Alignment::centre) << column;
      EXPECT_TRUE(table.look(0, column).wrap) << column;
    }
    EXPECT_FALSE(lineDialog.Command1.enabled());
    EXPECT_FALSE(lineDialog.Command2.enabled());
    EXPECT_FALSE(lineDialog.Command3.enabled());
  });
}

TEST_F(AddingALine, TheDialogOffersThePackages) {
  addPackage({.description = "Поддон"});
  look([&] {
    EXPECT_THAT(session.ParentSerials, ElementsAre("2", ""));
    EXPECT_THAT(session.ParentDescriptions, ElementsAre("Поддон", ""));
    EXPECT_THAT(session.ParentLevels, ElementsAre(1, 0));
  });
}

TEST_F(AddingALine, TheFirstLineTakesTheEmptyRow) {
  addLine({.ean = "4607000000116", .name = "Чай", .ordered = "7", .despatched = "5.5"});
  EXPECT_EQ(session.LineCount, 1);
  EXPECT_EQ(lines.rows(), 2);
  EXPECT_EQ(lines.cell(1, GRD_POZ_LP), "1");
  EXPECT_EQ(lines.row(), 1);
  EXPECT_EQ(form.ValidLineCount, 1);
  EXPECT_EQ(TestEditor::row(totals, 1), (std::vector<std::string>{"1", "5,500", "0,00"}));
  EXPECT_THAT(takeBoxes(), IsEmpty());
}

TEST_F(AddingALine, FurtherLinesAreAppended) {
  for (const char* ean : {"1", "2", "3"}) addLine({.ean = ean});
  look([&] { EXPECT_EQ(lineDialog.lblPozycjaTow.caption(), "Позиция номер 4"); });
  addLine({.ean = "4"});
  EXPECT_EQ(session.LineCount, 4);
  EXPECT_EQ(lines.rows(), 5);
  EXPECT_THAT(column(lines, GRD_POZ_LP), ElementsAre("1", "2", "3", "4"));
  EXPECT_THAT(column(lines, GRD_POZ_EAN), ElementsAre("1", "2", "3", "4"));
  EXPECT_EQ(lines.row(), 4);
  EXPECT_TRUE(lines.redraw());
}

TEST_F(AddingALine, TheTableHoldsNoMoreRowsThanThereAreLines) {
  lines.setRows(5);
  addLine({.ean = "1"});
  EXPECT_THAT(column(lines, GRD_POZ_EAN), ElementsAre("1"));
  lines.setRows(5);
  addLine({.ean = "2"});
  EXPECT_THAT(column(lines, GRD_POZ_EAN), ElementsAre("1", "2"));
}

TEST_F(AddingALine, EveryFieldReachesItsColumn) {
  addPackage({.description = "Поддон"});
  face.onModal([&] {
    type(LineEntry{.ean = "4607000000116", .name = "Чай", .ordered = "7,25", .despatched = "5"});
    lineDialog.txtKodKup.userType("B-1");
    lineDialog.txtKodSprzed.userType("S-1");
    lineDialog.LineWeight = "0,25";
    lineDialog.cboxJednostkaMiary.userChoose(1);
    lineDialog.LineOrderNumber = "10";
    // Prices and rates are hidden from the user, yet the catalogue fills them.
    lineDialog.txtCenaNetto.setText("2,499");
    lineDialog.txtAmount.setText("12,499");
    lineDialog.cboxKodVAT.userChoose(0);
    lineDialog.cboxStawkaVAT.setIndex(2);
    lineDialog.dtExpiryDate.userSet(makeDate(2027, 2, 3));
    lineDialog.comboCountry.userChoose(6);
    lineDialog.txtCDN1.userType("12345678");
    lineDialog.dpCDN2.userSet(makeDate(2026, 1, 9));
    lineDialog.txtCDN3.userType("1234567");
    lineDialog.txtCDN4.userType("RU");
    lineDialog.dtProdDate.userSet(makeDate(2026, 10, 5));
    lineDialog.dtExpiryDate.userSet(makeDate(2027, 2, 3));
    lineDialog.LinePeriod = "12";
    lineDialog.LinePeriodFormat = "802";
    assign(0, "3");
    lineDialog.btnDodaj.userClick();
  });
  form.btnDodaj.userClick();
  EXPECT_EQ(TestEditor::row(lines, 1), (std::vector<std::string>{"1",
                                                                 "4607000000116",
                                                                 "Чай",
                                                                 "7,250",
                                                                 "5,000",
                                                                 "2,50",
                                                                 "B-1",
                                                                 "S-1",
                                                                 "0,25",
                                                                 "KGM",
                                                                 "10",
                                                                 "12,50",
                                                                 "18",
                                                                 "S",
                                                                 "2027-02-03",
                                                                 "PL",
                                                                 "12345678/090126/1234567/RU",
                                                                 "2026-10-05",
                                                                 "12",
                                                                 "802",
                                                                 "2@Поддон@1@3,000",
                                                                 "3,000",
                                                                 ""}));
}

TEST_F(AddingALine, APlainLineHasEmptyCellsWhereNothingWasTyped) {
  addLine({.ean = "1", .name = "", .despatched = "5"});
  EXPECT_EQ(
      TestEditor::row(lines, 1),
      (std::vector<std::string>{"1", "1", "", "", "5,000",      "", "", "", "",      "", "", "", "",
                                "",  "",  "", "", "2026-11-21", "", "", "", "0,000", ""}));
}

TEST_F(AddingALineInAPointLocale, NumbersAreWrittenWithAPoint) {
  addLine({.ean = "1", .ordered = "7,5", .despatched = "5.25"});
  EXPECT_EQ(lines.cell(1, GRD_POZ_QTY_ORDERED), "7.500");
  EXPECT_EQ(lines.cell(1, GRD_POZ_QTY_DESPATCHED), "5.250");
  EXPECT_EQ(lines.cell(1, GRD_POZ_PACKED_QTY), "0.000");
  EXPECT_EQ(totals.cell(1, GRD_SUMA_QTY_DESPATCHED), "5.250");
}

TEST_F(AddingALine, ACountryThatIsNotAmongTheTenIsKeptAsTyped) {
  face.onModal([&] {
    type(LineEntry{});
    lineDialog.comboCountry.userType("jp");
    lineDialog.btnDodaj.userClick();
  });
  form.btnDodaj.userClick();
  EXPECT_EQ(lines.cell(1, GRD_POZ_COUNTRY), "JP");
}

TEST_F(AddingALine, ACountryRowBeyondTheTenIsKeptAsItsText) {
  lineDialog.touch().comboCountry.addRow("JP");
  face.onModal([&] {
    type(LineEntry{});
    lineDialog.comboCountry.userChoose(10);
    lineDialog.btnDodaj.userClick();
  });
  form.btnDodaj.userClick();
  EXPECT_EQ(lines.cell(1, GRD_POZ_COUNTRY), "JP");
}

TEST_F(AddingALine, AFreeUnitComesBackAsTyped) {
  face.onModal([&] {
    type(LineEntry{});
    lineDialog.cboxJednostkaMiary.userType("BOX");
    lineDialog.btnDodaj.userClick();
  });
  form.btnDodaj.userClick();
  EXPECT_EQ(lines.cell(1, GRD_POZ_UNIT), "BOX");
}

TEST_F(AddingALine, CountriesOfTheDialogReachTheMainForm) {
  form.comboCountry.addRow("only here");
  face.onModal([&](Form& shown) {
    lineDialog.comboCountry.addRow("(JP)Япония");
    shown.userClose();
  });
  form.btnDodaj.userClick();
  EXPECT_THAT(form.comboCountry.rows(), Contains("(JP)Япония"));
  EXPECT_EQ(form.comboCountry.rows(), lineDialog.comboCountry.rows());
}

TEST_F(AddingALine, WhatWasTypedInTheCountriesOfTheMainFormGoes) {
  form.comboCountry.userType("PL");
  look([&] { EXPECT_EQ(form.comboCountry.text(), "PL"); });
  EXPECT_EQ(form.comboCountry.text(), "");
  EXPECT_EQ(form.comboCountry.index(), -1);
}

TEST_F(AddingALine, ACancelledDialogChangesNoCellAndNoCounter) {
  addLine({});
  const auto before = TestEditor::row(lines, 1);
  face.onModal([&] {
    type(LineEntry{.ean = "2"});
    lineDialog.btnZamknij.userClick();
  });
  form.btnDodaj.userClick();
  EXPECT_EQ(session.LineCount, 1);
  EXPECT_EQ(lines.rows(), 2);
  EXPECT_EQ(TestEditor::row(lines, 1), before);
  EXPECT_EQ(lineDialog.txtlEANProdWart.text(), "2");
}

TEST_F(AddingALine, TheTableIsPaintedAnewAlsoAfterACancelledDialog) {
  int painted = 0;
  lines.observers.add([&](const Change& change) { painted += change.aspect == Aspect::redraw; });
  look([] {});
  EXPECT_EQ(painted, 1);
}

TEST_F(AddingALine, AnErrorBeforeTheDialogLeavesTheControlDisabled) {
  putPackages(1, [](int) { return 0; });
  packages.setCell(1, GRD_OPAK_LEVEL, "high");
  form.btnDodaj.userClick();
  EXPECT_THAT(takeBoxes(),
              ElementsAre("Произошла ошибка в btnDodaj_Click()|critical|OK|Type mismatch"));
  EXPECT_FALSE(form.enabled());
  EXPECT_THAT(face.modalForms(), IsEmpty());
}

TEST_F(AddingALine, TheLastReachableRowIsWrittenWhole) {
  putLines(1422);
  addLine({.ean = "1"});
  EXPECT_EQ(session.LineCount, 1423);
  EXPECT_EQ(lines.cell(1423, GRD_POZ_PACKED_QTY), "0,000");
  EXPECT_THAT(takeBoxes(), IsEmpty());
}

/// The flat index of row 1424 leaves 16 bits at column 16.
TEST_F(AddingALine, TheRowPastTheLimitIsWrittenHalfWay) {
  putLines(1423);
  face.onModal([&] {
    type(LineEntry{.ean = "77", .despatched = "2"});
    lineDialog.comboCountry.userChoose(0);
    lineDialog.txtCDN1.userType("12345678");
    lineDialog.txtCDN3.userType("1234567");
    lineDialog.btnDodaj.userClick();
  });
  form.btnDodaj.userClick();
  EXPECT_THAT(takeBoxes(),
              ElementsAre("Произошла ошибка в ZatwierdzPozycje()|critical|OK|Overflow"));
  EXPECT_EQ(session.LineCount, 1424);
  EXPECT_EQ(lines.rows(), 1425);
  EXPECT_EQ(lines.cell(1424, GRD_POZ_LP), "1424");
  EXPECT_EQ(lines.cell(1424, GRD_POZ_EAN), "77");
  EXPECT_EQ(lines.cell(1424, GRD_POZ_COUNTRY), "RU");
  EXPECT_EQ(lines.cell(1424, GRD_POZ_CDN), "");
  EXPECT_EQ(lines.cell(1424, GRD_POZ_PACKED_QTY), "");
  EXPECT_EQ(lines.row(), 1);
  EXPECT_FALSE(lines.redraw());
  EXPECT_TRUE(form.enabled());
}

TEST_F(AddingALine, TheRowAfterThatHasNoCellAtAll) {
  putLines(1424);
  addLine({.ean = "77"});
  EXPECT_THAT(takeBoxes(),
              ElementsAre("Произошла ошибка в ZatwierdzPozycje()|critical|OK|Overflow"));
  EXPECT_EQ(session.LineCount, 1425);
  EXPECT_EQ(lines.cell(1425, GRD_POZ_EAN), "");
}

TEST_F(AddingALine, AFullCounterOverflowsBeforeTheDialogOpens) {
  putLines(1);
  session.LineCount = 32767;
  form.btnDodaj.userClick();
  EXPECT_THAT(takeBoxes(), ElementsAre("Произошла ошибка в btnDodaj_Click()|critical|OK|Overflow"));
  EXPECT_EQ(session.LineCount, 32767);
}

}  // namespace
}  // namespace awizo::test
