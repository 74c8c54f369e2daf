#include "session/record/header_panel.h"

#include "support/test_editor.h"

namespace awizo::test {
namespace {

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
