#include "line_dialog.h"

namespace awizo::test {
namespace {

using ::testing::ElementsAre;

struct LineDialogFields : ::testing::Test {
  LineDialog test;
  DlgDodaj& dialog = test.dialog;
};

TEST_F(LineDialogFields, TextFieldsHaveTheirCaptionsAndLimits) {
  struct Expected {
    const TextField& field;
    std::string_view caption;
    int limit;
    Alignment alignment = Alignment::left;
  };
  const std::vector<Expected> all{
      {dialog.txtNazwaProdWart, "Наименование товара:", 70},
      {dialog.txtlEANProdWart, "Штрих-код товара:", 14},
      {dialog.txtKodKup, "Код товара у покупателя:", 40},
      {dialog.txtKodSprzed, "Код товара у продавца:", 40},
      {dialog.txtIloscZam, "Количество заказа:", 9, Alignment::right},
      {dialog.txtIloscPotw, "Количество отгружено:", 9, Alignment::right},
      {dialog.txtCenaNetto, "Цена за единицу без НДС:", 16, Alignment::right},
      {dialog.txtAmount, "Сумма без НДС:", 0, Alignment::right},
      {dialog.txtCDN1, "ГТД:", 8},
      {dialog.txtCDN3, "", 7},
      {dialog.txtCDN4, "", 3},
  };
  for (const Expected& expected : all) {
    SCOPED_TRACE(expected.field.name());
    EXPECT_EQ(expected.field.caption(), expected.caption);
    EXPECT_EQ(expected.field.limit(), expected.limit);
    EXPECT_EQ(expected.field.alignment(), expected.alignment);
  }
}

TEST_F(LineDialogFields, LimitsCountCharacters) {
  test.load();
  dialog.txtCDN1.setText("П12345678");
  EXPECT_EQ(dialog.txtCDN1.text(), "П1234567");
  dialog.txtAmount.setText(std::string(500, '1'));
  EXPECT_EQ(dialog.txtAmount.text().size(), 500U);
}

TEST_F(LineDialogFields, LabelsHaveTheirCaptions) {
  const std::vector<std::pair<const Label*, std::string_view>> all{
      {&dialog.lblPozycjaTow, "Номер товарной позиции"},
      {&dialog.lblNazwaProd, "Наименование товара:"},
      {&dialog.lblEANProd, "Штрих-код товара:"},
      {&dialog.lblKodKup, "Код товара у покупателя:"},
      {&dialog.lblKodSprzed, "Код товара у продавца:"},
      {&dialog.lblJednostkaMiary, "Единица измерения:"},
      {&dialog.Label8, "Ставка НДС в %:"},
      {&dialog.Label10, "Код ставки НДС:"},
      {&dialog.lblIloscZam, "Количество заказа:"},
      {&dialog.lblIloscPotw, "Количество отгружено:"},
      {&dialog.lblCenaNetto, "Цена за единицу без НДС:"},
      {&dialog.Label7, "Сумма без НДС:"},
      {&dialog.Label5, "Дата изготовления:"},
      {&dialog.lblExpiryDate, "Срок годности:"},
      {&dialog.lblContryOfOryginCode, "Код страны производителя:"},
      {&dialog.Label9, "ГТД:"},
      {&dialog.Label4, "Секция упаковки"},
      {&dialog.lblPackedQuantity, "Упакованное количество:"},
  };
  for (const auto& [label, caption] : all) EXPECT_EQ(label->caption(), caption) << label->name();
}

TEST_F(LineDialogFields, ButtonsHaveTheirCaptions) {
  EXPECT_EQ(dialog.Command1.caption(), "+");
  EXPECT_EQ(dialog.Command2.caption(), "-");
  EXPECT_EQ(dialog.Command3.caption(), "•");
  EXPECT_EQ(dialog.btnDodaj.caption(), "&Добавить");
  EXPECT_EQ(dialog.btnZamknij.caption(), "&Назад");
  EXPECT_EQ(dialog.btnISOcodes.caption(), "ISO коды стран.");
  EXPECT_EQ(dialog.acceptButton, &dialog.btnDodaj);
  EXPECT_EQ(dialog.closeButton, &dialog.btnZamknij);
}

TEST_F(LineDialogFields, OnlyTheExpiryDateMayHoldNone) {
  EXPECT_FALSE(dialog.dtProdDate.allowsNone());
  EXPECT_TRUE(dialog.dtExpiryDate.allowsNone());
  EXPECT_FALSE(dialog.dpCDN2.allowsNone());
  EXPECT_EQ(dialog.dtProdDate.shownForm(), DateForm::longDate);
  EXPECT_EQ(dialog.dtExpiryDate.shownForm(), DateForm::longDate);
  EXPECT_EQ(dialog.dpCDN2.shownForm(), DateForm::shortDate);
  EXPECT_EQ(DatePicker::min(), makeDate(1601, 1, 1));
  EXPECT_EQ(DatePicker::max(), makeDate(9999, 12, 31));
}

TEST_F(LineDialogFields, VATIsPickedAndTheRestMayBeTyped) {
  for (const DropDownList* list : {&dialog.cboxStawkaVAT, &dialog.cboxKodVAT}) {
    EXPECT_EQ(list->style(), ListStyle::listOnly) << list->name();
  }
  for (const DropDownList* list :
       {&dialog.cboxNazwaProd, &dialog.cboxEANProd, &dialog.cboxKodAPP, &dialog.cboxKodSprzed,
        &dialog.cboxJednostkaMiary, &dialog.comboCountry}) {
    EXPECT_EQ(list->style(), ListStyle::freeTyping) << list->name();
  }
}

TEST_F(LineDialogFields, FixedListsAreFilledAtLoading) {
  test.load();
  EXPECT_THAT(dialog.cboxJednostkaMiary.rows(),
              ElementsAre("Штук"
                          "\x61",
                          "Килограмм", "Метр", "Километр", "Упаковка", "Комплект", "Пара", "Тонна",
                          "Литр"));
  EXPECT_THAT(dialog.cboxKodVAT.rows(), ElementsAre("S", "E"));
  EXPECT_THAT(dialog.cboxStawkaVAT.rows(), ElementsAre("0", "10", "18"));
  EXPECT_THAT(
      dialog.comboCountry.rows(),
      ElementsAre("(RU)Россия", "(BY)Белоруссия", "(KZ)Казахстан", "(CN)Китай", "(LV)Латвия",
                  "(LT)Литва", "(PL)Польша", "(UA)Украина", "(FI)Финляндия", "(EE)Эстония"));
}

struct LineDialogCodes : LineDialogFields {
  LineDialogCodes() { test.load(); }
};

TEST_F(LineDialogCodes, OfUnits) {
  const std::vector<std::string> codes{"PCE", "KGM", "MTR", "KMT", "PA", "SET", "PR", "TNE", "LTR"};
  for (std::int16_t i = 0; i < 9; ++i) {
    EXPECT_EQ(dialog.symbolJednostkiMiary(i), codes[static_cast<std::size_t>(i)]);
    EXPECT_EQ(dialog.indexJednostkiMiary(codes[static_cast<std::size_t>(i)]), i);
  }
  EXPECT_EQ(dialog.indexJednostkiMiary("ltr"), 8);
  EXPECT_EQ(dialog.indexJednostkiMiary("BX"), -1);
  EXPECT_EQ(dialog.indexJednostkiMiary(""), -1);
  EXPECT_EQ(dialog.indexJednostkiMiary("Литр"), -1);
}

TEST_F(LineDialogCodes, OfAnUnknownUnitAreEmpty) {
  EXPECT_EQ(dialog.symbolJednostkiMiary(9), "");
  EXPECT_EQ(dialog.symbolJednostkiMiary(-2), "");
  EXPECT_EQ(dialog.symbolJednostkiMiary(32767), "");
  EXPECT_EQ(dialog.symbolJednostkiMiary(-32768), "");
}

TEST_F(LineDialogCodes, ATypedUnitIsItsOwnAndTrimmedWhenLeft) {
  test.show([&] {
    dialog.cboxJednostkaMiary.userType("  ящик ");
    EXPECT_EQ(dialog.symbolJednostkiMiary(-1), "  ящик ");
    dialog.txtAmount.userFocus();
    EXPECT_EQ(dialog.symbolJednostkiMiary(-1), "ящик");
    EXPECT_EQ(dialog.cboxJednostkaMiary.index(), -1);
  });
}

TEST_F(LineDialogCodes, OfAnUnknownCategoryAreE) {
  EXPECT_EQ(dialog.symbolKodVAT(0), "S");
  EXPECT_EQ(dialog.symbolKodVAT(1), "E");
  EXPECT_EQ(dialog.symbolKodVAT(2), "E");
  EXPECT_EQ(dialog.symbolKodVAT(-2), "E");
  EXPECT_EQ(dialog.symbolKodVAT(-1), "");
  EXPECT_EQ(dialog.indexKodVAT("S"), 0);
  EXPECT_EQ(dialog.indexKodVAT("s"), 0);
  EXPECT_EQ(dialog.indexKodVAT("e"), 1);
  EXPECT_EQ(dialog.indexKodVAT("Z"), -1);
}

TEST_F(LineDialogCodes, OfRatesMatchExactly) {
  EXPECT_EQ(dialog.symbolStawkaVAT(0), "0");
  EXPECT_EQ(dialog.symbolStawkaVAT(1), "10");
  EXPECT_EQ(dialog.symbolStawkaVAT(2), "18");
  EXPECT_EQ(dialog.symbolStawkaVAT(3), "");
  EXPECT_EQ(dialog.symbolStawkaVAT(-2), "");
  EXPECT_EQ(dialog.symbolStawkaVAT(-1), "");
  EXPECT_EQ(dialog.indexStawkaVAT("18"), 2);
  EXPECT_EQ(dialog.indexStawkaVAT("10.00"), -1);
  EXPECT_EQ(dialog.indexStawkaVAT(""), -1);
}

TEST_F(LineDialogCodes, OfIndexMinusOneAreWhatTheListShows) {
  dialog.cboxKodVAT.setIndex(1);
  EXPECT_EQ(dialog.symbolKodVAT(-1), "E");
  dialog.cboxStawkaVAT.setIndex(2);
  EXPECT_EQ(dialog.symbolStawkaVAT(-1), "18");
}

}  // namespace
}  // namespace awizo::test
