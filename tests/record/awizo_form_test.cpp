#include "session/record/awizo_form.h"

#include "support/test_editor.h"

namespace awizo::test {
namespace {

struct FormTest : testing::Test {
  TestEditor test;
  AwizoForm& form = test.form;
};

TEST_F(FormTest, HeaderFieldsBearTheirCaptions) {
  EXPECT_EQ(form.frmDaneNaglowka.caption(), "                      Заголовок");
  EXPECT_EQ(form.txtNrAwiza.caption(), "Номер документа (транспортной накладной):");
  EXPECT_EQ(form.txtDataAwiza.caption(), "Дата документа:");
  EXPECT_EQ(form.txtDespatchAdviceTime.caption(), "Время документа:");
  EXPECT_EQ(form.txtNrZam.caption(), "Номер заказа:");
  EXPECT_EQ(form.dpDataZam.caption(), "Дата заказа :");
  EXPECT_EQ(form.txtEstimatedDeliveryDate.caption(), "Дата  доставки:");
  EXPECT_EQ(form.txtEstimatedDeliveryTime.caption(), "Время доставки:");
  EXPECT_EQ(form.txtCodeByBuyer.caption(), "Код поставщика у покупателя:");
  EXPECT_EQ(form.cboxPackageDescription.caption(), "Количество в упаковке:");
  EXPECT_EQ(form.txtGoodsIdentity.caption(), "Идентификационный код паллета:");
}

TEST_F(FormTest, ValueLabelsBearTheirHeadings) {
  EXPECT_EQ(form.lblILNSprzedWart.heading(), "Продавец:");
  EXPECT_EQ(form.lblNameSprzedWart.heading(), "Продавец:");
  EXPECT_EQ(form.lblILNKupWart.heading(), "Покупатель:");
  EXPECT_EQ(form.lblNameKupWart.heading(), "Покупатель:");
  EXPECT_EQ(form.lblILNMiejscaDostValue.heading(), "ILN места доставки:");
  EXPECT_EQ(form.lblNazwaMiejscaDostWart.heading(), "Место доставки:");
  EXPECT_EQ(form.lblAdresMiejscaDostawy.heading(), "Адрес места доставки:");
  EXPECT_EQ(form.lblNazwaMiejscaDostawy.heading(), "Адрес места доставки:");
  EXPECT_EQ(form.lblCurrencyWart.heading(), "Currency:");
}

TEST_F(FormTest, ValueLabelsStartEmptyButFour) {
  for (const Label* label :
       {&form.lblILNSprzedWart, &form.lblNameSprzedWart, &form.lblILNKupWart, &form.lblNameKupWart,
        &form.lblILNMiejscaDostValue, &form.lblNazwaMiejscaDostWart, &form.lblAdresMiejscaDostawy,
        &form.lblNazwaMiejscaDostawy}) {
    EXPECT_EQ(label->caption(), "") << label->name();
  }
  EXPECT_EQ(form.lblCurrencyWart.caption(), "RUR");
  EXPECT_EQ(form.lblOnLineStatus.caption(), "On-Line");
  EXPECT_EQ(form.lblVersion.caption(), "VIRDDesAdv 0.0.0.0");
  EXPECT_EQ(form.lblNiepelnaWagaKom.caption(), "Не для всех позиций указан вес");
}

TEST_F(FormTest, GroupsAndButtonsBearTheirCaptions) {
  EXPECT_EQ(form.frmPozycje.caption(), "Товарные позиции");
  EXPECT_EQ(form.lblStawkaVAT.caption(), "Ставка НДС");
  EXPECT_EQ(form.btnUzupelnij.caption(), "Заполнить пустые поля для НДС");
  EXPECT_EQ(form.btnNadpisz.caption(), "Заполнить все поля для НДС");
  EXPECT_EQ(form.btnUzupelnij2.caption(), "Заполнить пустые поля для 'Код страны производителя'");
  EXPECT_EQ(form.btnNadpisz2.caption(), "Заполнить все поля для 'Код страны производителя'");
  EXPECT_EQ(form.Frame1.caption(), "Упаковки");
  EXPECT_EQ(form.frmPodsumowanie.caption(), "Итоги");
}

TEST_F(FormTest, SendingSavingAndLoadingArePictures) {
  EXPECT_EQ(form.btnPrzeslij.kind(), ControlKind::pictureButton);
  EXPECT_EQ(form.btnZapisz.kind(), ControlKind::pictureButton);
  EXPECT_EQ(form.btnWczytaj.kind(), ControlKind::pictureButton);
}

TEST_F(FormTest, AnEmptyDocumentHasOneEmptyRowInEachTable) {
  EXPECT_EQ(form.grdPozycje.columns(), 23);
  EXPECT_EQ(form.grdOpakowania.columns(), 15);
  EXPECT_EQ(form.grdSuma.columns(), 3);
  for (const Table* table : {&form.grdPozycje, &form.grdOpakowania, &form.grdSuma}) {
    EXPECT_EQ(table->rows(), 2) << table->name();
    EXPECT_EQ(table->fixedRows(), 1) << table->name();
    EXPECT_THAT(TestEditor::row(*table, 1), testing::Each("")) << table->name();
  }
  EXPECT_EQ(test.session.LineCount, 0);
  EXPECT_EQ(test.session.IloscPozycjiOpak, 0);
}

}  // namespace
}  // namespace awizo::test
