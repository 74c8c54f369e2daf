#include "support/control/desk.h"

namespace awizo::test {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;

const std::vector<std::string> fullRow{"7",
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
                                       "12345678/010299/1234567/RU",
                                       "2026-10-05",
                                       "12",
                                       "802",
                                       "2@Поддон@1@3,000$3@Короб@2@1,000",
                                       "4,000",
                                       ""};

class EditingALine : public ::testing::Test, public Desk {
 protected:
  explicit EditingALine(const char* localeName = "ru_RU", const char* debugLevel = "")
      : Desk(localeName, debugLevel) {
    putLines(2);
    putRow(2, fullRow);
    lines.setRow(2);
  }

  void putRow(int row, const std::vector<std::string>& texts) {
    for (int i = 0; i < lines.columns(); ++i)
      lines.setCell(row, i, texts[static_cast<std::size_t>(i)]);
  }
  void put(int column, const std::string& text) { lines.setCell(2, column, text); }
  /// Opens the dialog for the current line, looks, and closes it.
  void look(const std::function<void()>& act) {
    face.onModal([&](Form& shown) {
      act();
      shown.userClose();
    });
    form.btnEdytuj.userClick();
  }
};

struct EditingALineInAPointLocale : EditingALine {
  EditingALineInAPointLocale() : EditingALine("en_US") {}
};

struct EditingALineWithALog : EditingALine {
  EditingALineWithALog() : EditingALine("ru_RU", "4") {}
};

TEST_F(EditingALine, WithoutLinesNothingHappens) {
  putLines(0);
  form.btnEdytuj.userClick();
  EXPECT_THAT(face.modalForms(), IsEmpty());
  EXPECT_TRUE(form.enabled());
}

TEST_F(EditingALine, EveryCellReachesItsField) {
  form.OrderAnswer = true;
  look([&] {
    EXPECT_EQ(lineDialog.caption(), "Издание продукта");
    EXPECT_EQ(lineDialog.btnDodaj.caption(), "&Подтвердить");
    EXPECT_EQ(lineDialog.lblPozycjaTow.caption(), "Позиция номер 7");
    EXPECT_EQ(lineDialog.txtlEANProdWart.text(), "4607000000116");
    EXPECT_EQ(lineDialog.txtNazwaProdWart.text(), "Чай");
    EXPECT_EQ(lineDialog.txtIloscZam.text(), "7,250");
    EXPECT_FALSE(lineDialog.txtIloscZam.enabled());
    EXPECT_EQ(lineDialog.txtIloscPotw.text(), "5,000");
    EXPECT_EQ(lineDialog.txtCenaNetto.text(), "2,50");
    EXPECT_EQ(lineDialog.txtKodKup.text(), "B-1");
    EXPECT_EQ(lineDialog.txtKodSprzed.text(), "S-1");
    EXPECT_EQ(lineDialog.LineWeight, "0,25");
    EXPECT_EQ(lineDialog.cboxJednostkaMiary.text(), "Килограмм");
    EXPECT_EQ(lineDialog.LineOrderNumber, "10");
    EXPECT_EQ(lineDialog.txtAmount.text(), "12,50");
    EXPECT_EQ(lineDialog.cboxStawkaVAT.text(), "18");
    EXPECT_EQ(lineDialog.cboxKodVAT.text(), "S");
    EXPECT_EQ(lineDialog.dtExpiryDate.date(), makeDate(2027, 2, 3));
    EXPECT_EQ(lineDialog.comboCountry.text(), "(PL)Польша");
    EXPECT_EQ(lineDialog.txtCDN1.text(), "12345678");
    EXPECT_EQ(lineDialog.dpCDN2.date(), makeDate(1999, 2, 1));
    EXPECT_EQ(lineDialog.txtCDN3.text(), "1234567");
    EXPECT_EQ(lineDialog.txtCDN4.text(), "RU");
    EXPECT_EQ(lineDialog.dtProdDate.date(), makeDate(2026, 10, 5));
    EXPECT_EQ(lineDialog.LinePeriod, "12");
    EXPECT_EQ(lineDialog.LinePeriodFormat, "802");
    EXPECT_EQ(lineDialog.lblPackedQuantityValue.caption(), "4,000");
    EXPECT_TRUE(lineDialog.LineFromOrder);
    EXPECT_FALSE(form.enabled());
  });
  EXPECT_TRUE(lineDialog.txtIloscZam.enabled());
  EXPECT_TRUE(form.enabled());
  EXPECT_EQ(TestEditor::row(lines, 2), fullRow);
}

TEST_F(EditingALine, WhatWasPickedForAnotherLineIsGone) {
  lineDialog.touch();
  for (DropDownList* list : {&lineDialog.cboxNazwaProd, &lineDialog.cboxEANProd,
                             &lineDialog.cboxKodAPP, &lineDialog.cboxKodSprzed}) {
    list->setText("old");
  }
  look([&] {
    for (const DropDownList* list : {&lineDialog.cboxNazwaProd, &lineDialog.cboxEANProd,
                                     &lineDialog.cboxKodAPP, &lineDialog.cboxKodSprzed}) {
      EXPECT_EQ(list->text(), "") << list->name();
    }
    EXPECT_EQ(lineDialog.txtlEANProdWart.text(), "4607000000116");
    EXPECT_EQ(lineDialog.txtKodKup.text(), "B-1");
  });
}

TEST_F(EditingALine, AnEmptyCodeIsThatOfTheFirstProductWithoutOne) {
  session.ProductCatalogLoaded = session.ProductCatalogDom->loadText(
      "<Document-ProductCatalogue><ProductCatalogue-Lines><Line><Line-Item><EAN>1</EAN>"
      "<ItemDescription>Соль</ItemDescription></Line-Item></Line></ProductCatalogue-Lines>"
      "</Document-ProductCatalogue>");
  lineDialog.touch().cboxKodAPP.setText("old");
  look([&] {
    EXPECT_EQ(lineDialog.cboxKodAPP.index(), 0);
    EXPECT_EQ(lineDialog.cboxEANProd.index(), 0);
    EXPECT_EQ(lineDialog.txtlEANProdWart.text(), "4607000000116") << "the line's own fields stay";
    EXPECT_EQ(lineDialog.txtNazwaProdWart.text(), "Чай");
    EXPECT_EQ(lineDialog.txtKodKup.text(), "B-1");
  });
}

/// Equal rows are all selected, one after another; the text changes with the first alone.
TEST_F(EditingALine, OfEqualRowsOfTheCodeTheLastIsSelected) {
  DropDownList& list = lineDialog.touch().cboxEANProd;
  list.setRows({"4607000000116", "1", "4607000000116", "46070000001160"});
  look([&] { EXPECT_EQ(list.index(), 2); });
}

TEST_F(EditingALine, ThePackagesOfTheLineFillTheDialogsTable) {
  addPackage({.description = "Поддон"});
  lines.setRow(2);
  look([&] {
    const Table& table = lineDialog.grdPozycje;
    EXPECT_EQ(table.rows(), 3);
    EXPECT_EQ(TestEditor::row(table, 1),
              (std::vector<std::string>{"", "2", "Поддон", "1", "3,000"}));
    EXPECT_EQ(TestEditor::row(table, 2),
              (std::vector<std::string>{"", "3", "Короб", "2", "1,000"}));
    for (int i = 0; i < 5; ++i) {
      EXPECT_EQ(table.look(0, i).alignment, Alignment::centre) << i;
      EXPECT_TRUE(table.look(0, i).wrap) << i;
    }
    EXPECT_TRUE(lineDialog.Command1.enabled());
    EXPECT_TRUE(lineDialog.Command2.enabled());
    EXPECT_TRUE(lineDialog.Command3.enabled());
  });
}

TEST_F(EditingALine, ConfirmingWithoutAChangeWritesTheSameRow) {
  editLine([] {});
  EXPECT_EQ(TestEditor::row(lines, 2), fullRow);
  EXPECT_EQ(session.LineCount, 2);
  EXPECT_THAT(takeBoxes(), IsEmpty());
}

TEST_F(EditingALine, WhatTheUserChangesReachesTheRow) {
  editLine([&] {
    lineDialog.txtNazwaProdWart.userType("Кофе");
    lineDialog.txtIloscPotw.userType("4");
    lineDialog.dtExpiryDate.userSet(std::nullopt);
    lineDialog.comboCountry.userType("");
    lineDialog.txtCDN1.userType("");
    lineDialog.txtCDN3.userType("");
  });
  EXPECT_EQ(lines.cell(2, GRD_POZ_NAME), "Кофе");
  EXPECT_EQ(lines.cell(2, GRD_POZ_QTY_DESPATCHED), "4,000");
  EXPECT_EQ(lines.cell(2, GRD_POZ_EXPIRY_DATE), "");
  EXPECT_EQ(lines.cell(2, GRD_POZ_COUNTRY), "");
  EXPECT_EQ(lines.cell(2, GRD_POZ_CDN), "");
  EXPECT_EQ(lines.cell(2, GRD_POZ_LP), "7");
  EXPECT_EQ(totals.cell(1, GRD_SUMA_QTY_DESPATCHED), "5,000");
}

TEST_F(EditingALine, ACommittedLineIsWhite) {
  for (int i = 1; i <= 21; ++i) lines.setBackground(2, i, pink);
  lines.setBackground(1, 1, pink);
  editLine([] {});
  for (int i = 1; i <= 21; ++i) EXPECT_EQ(lines.look(2, i).background, white) << i;
  EXPECT_EQ(lines.look(1, 1).background, pink);
  EXPECT_TRUE(lines.redraw());
}

TEST_F(EditingALine, ACancelledDialogKeepsLineAndColour) {
  lines.setBackground(2, 1, pink);
  look([&] { lineDialog.txtNazwaProdWart.userType("Кофе"); });
  EXPECT_EQ(TestEditor::row(lines, 2), fullRow);
  EXPECT_EQ(lines.look(2, 1).background, pink);
}

TEST_F(EditingALine, CountriesOfTheDialogReachTheMainForm) {
  look([&] { lineDialog.comboCountry.addRow("(JP)Япония"); });
  EXPECT_EQ(form.comboCountry.rows(), lineDialog.comboCountry.rows());
  EXPECT_EQ(form.comboCountry.rows().back(), "(JP)Япония");
}

TEST_F(EditingALine, WhatWasTypedInTheCountriesOfTheMainFormGoes) {
  form.comboCountry.userType("PL");
  look([&] { EXPECT_EQ(form.comboCountry.text(), "PL"); });
  EXPECT_EQ(form.comboCountry.text(), "");
  EXPECT_EQ(form.comboCountry.index(), -1);
}

TEST_F(EditingALine, WithoutACustomsNumberItsFieldsAreEmptyAndItsDateIsToday) {
  put(GRD_POZ_CDN, "");
  look([&] {
    EXPECT_EQ(lineDialog.txtCDN1.text(), "");
    EXPECT_EQ(lineDialog.txtCDN3.text(), "");
    EXPECT_EQ(lineDialog.txtCDN4.text(), "");
    EXPECT_EQ(lineDialog.dpCDN2.date(), makeDate(2026, 11, 21));
  });
}

TEST_F(EditingALine, ACustomsDateThatIsNotSixDigitsIsToday) {
  for (const char* number : {"1/01029/2", "1/0102999/2", "1/abcdef/2", "1//2", "1/2"}) {
    put(GRD_POZ_CDN, number);
    lineDialog.touch().dpCDN2.setDate(makeDate(2020, 1, 1));
    look([&] { EXPECT_EQ(lineDialog.dpCDN2.date(), makeDate(2026, 11, 21)) << number; });
  }
}

TEST_F(EditingALine, ACustomsDateOfSixDigitsThatIsNoneIsAnError) {
  put(GRD_POZ_CDN, "1/991399/2");
  form.btnEdytuj.userClick();
  EXPECT_THAT(takeBoxes(),
              ElementsAre("Произошла ошибка в btnEdytuj_Click()|critical|OK|Type mismatch"));
  EXPECT_FALSE(form.enabled());
}

TEST_F(EditingALineInAPointLocale, TheCustomsDateIsReadByTheLocale) {
  put(GRD_POZ_QTY_ORDERED, "7.250");
  put(GRD_POZ_PACKED_QTY, "4.000");
  look([&] {
    // The text is 01-02-99, which begins with the month here.
    EXPECT_EQ(lineDialog.dpCDN2.date(), makeDate(1999, 1, 2));
    EXPECT_EQ(lineDialog.dtExpiryDate.date(), makeDate(2027, 2, 3));
  });
}

TEST_F(EditingALineWithALog, TheLogTellsTheCustomsDate) {
  look([] {});
  EXPECT_THAT(logText(),
              HasSubstr("Edycja: cdnTab(1)=010299\r\n21.11.2026 10:15 Edycja-DD: 01\r\n21.11.2026 "
                        "10:15 Edycja-MM: 02\r\n21.11.2026 10:15 Edycja-YY: 99\r\n"));
}

TEST_F(EditingALineWithALog, TheLogTellsNoPartsOfADateThatIsNone) {
  put(GRD_POZ_CDN, "1/01029/2");
  look([] {});
  EXPECT_THAT(logText(), HasSubstr("Edycja: cdnTab(1)=01029\r\n"));
  EXPECT_THAT(logText(), Not(HasSubstr("Edycja-DD")));
}

TEST_F(EditingALine, AnUnknownUnitAndCountryAreShownAsTyped) {
  put(GRD_POZ_UNIT, "BOX");
  put(GRD_POZ_COUNTRY, "JP");
  editLine([&] {
    EXPECT_EQ(lineDialog.cboxJednostkaMiary.text(), "BOX");
    EXPECT_EQ(lineDialog.cboxJednostkaMiary.index(), -1);
    EXPECT_EQ(lineDialog.comboCountry.text(), "JP");
  });
  EXPECT_EQ(lines.cell(2, GRD_POZ_UNIT), "BOX");
  EXPECT_EQ(lines.cell(2, GRD_POZ_COUNTRY), "JP");
}

TEST_F(EditingALine, AnUnknownRateOrCategorySelectsNoRow) {
  put(GRD_POZ_TAX_RATE, "18.0");
  put(GRD_POZ_TAX_CATEGORY, "Q");
  editLine([&] {
    EXPECT_EQ(lineDialog.cboxStawkaVAT.index(), -1);
    EXPECT_EQ(lineDialog.cboxKodVAT.index(), -1);
  });
  EXPECT_EQ(lines.cell(2, GRD_POZ_TAX_RATE), "");
  EXPECT_EQ(lines.cell(2, GRD_POZ_TAX_CATEGORY), "");
}

TEST_F(EditingALine, ACategoryWithoutTaxTakesTheRateToZero) {
  put(GRD_POZ_TAX_RATE, "18");
  put(GRD_POZ_TAX_CATEGORY, "E");
  look([&] { EXPECT_EQ(lineDialog.cboxStawkaVAT.text(), "0"); });
}

TEST_F(EditingALine, WithoutAnExpiryDateThePickerIsEmptyAndOpensOnToday) {
  put(GRD_POZ_EXPIRY_DATE, "");
  lineDialog.touch().dtExpiryDate.setDate(makeDate(2020, 1, 1));
  look([&] {
    EXPECT_EQ(lineDialog.dtExpiryDate.date(), std::nullopt);
    EXPECT_EQ(lineDialog.dtExpiryDate.lastDate(), makeDate(2026, 11, 21));
  });
}

TEST_F(EditingALine, AnExpiryDateThatIsNoneEndsTheEdit) {
  put(GRD_POZ_EXPIRY_DATE, "soon");
  form.btnEdytuj.userClick();
  EXPECT_THAT(takeBoxes(),
              ElementsAre("Произошла ошибка в btnEdytuj_Click()|critical|OK|Type mismatch"));
  EXPECT_THAT(face.modalForms(), IsEmpty());
  EXPECT_FALSE(form.enabled());
}

TEST_F(EditingALine, AProductionDateThatIsNoneEndsTheEdit) {
  put(GRD_POZ_PRODUCTION_DATE, "");
  form.btnEdytuj.userClick();
  EXPECT_THAT(takeBoxes(),
              ElementsAre("Произошла ошибка в btnEdytuj_Click()|critical|OK|Type mismatch"));
}

TEST_F(EditingALine, APackedQuantityThatIsNoNumberIsToldAndBecomesEmpty) {
  put(GRD_POZ_PACK_REFS, "2@Поддон@1@x");
  put(GRD_POZ_PACKED_QTY, "0,000");
  editLine([] {});
  EXPECT_THAT(takeBoxes(),
              Contains("Произошла ошибка в GetPackedQuantity|critical|OK|Type mismatch"));
  EXPECT_EQ(lines.cell(2, GRD_POZ_PACK_REFS), "2@Поддон@1@x");
  EXPECT_EQ(lines.cell(2, GRD_POZ_PACKED_QTY), "");
}

TEST_F(EditingALine, TheLineOfTheCurrentRowIsEdited) {
  lines.userCell(1, GRD_POZ_EAN);
  editLine([&] {
    EXPECT_EQ(lineDialog.lblPozycjaTow.caption(), "Позиция номер 1");
    lineDialog.txtNazwaProdWart.userType("Кофе");
  });
  EXPECT_EQ(lines.cell(1, GRD_POZ_NAME), "Кофе");
  EXPECT_EQ(lines.row(), 1);
}

TEST_F(EditingALine, ARowPastTheLimitCantBeOpened) {
  putLines(1424);
  lines.setRow(1424);
  form.btnEdytuj.userClick();
  EXPECT_THAT(takeBoxes(),
              ElementsAre("Произошла ошибка в btnEdytuj_Click()|critical|OK|Overflow"));
  EXPECT_FALSE(form.enabled());
  EXPECT_THAT(face.modalForms(), IsEmpty());
}

}  // namespace
}  // namespace awizo::test
