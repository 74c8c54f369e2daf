// The choice with a dictionary that no catalogue filled, and the dialog's events led to it.

#include "line_dialog.h"

namespace awizo::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

struct ProductChoiceAlone : ::testing::Test {
  LineDialog test;
  DlgDodaj& dialog = test.dialog;
  /// The dialog's, which nothing else fills here.
  ProductDictionary& products = const_cast<ProductDictionary&>(dialog.dictionary());
  ProductChoice choice{test.editor, dialog};

  ProductChoiceAlone() {
    test.load();
    products.ProdEAN = {"4601", "4602"};
    products.ProdName = {"Чай", "Кофе"};
    products.ProdSupplierCode = {"s1", "s2"};
    products.ProdBuyerCode = {"b1", "b2"};
    for (auto* texts : {&products.ProdUnit, &products.ProdPackSize, &products.ProdTaxRate,
                        &products.ProdPrice, &products.ProdTaxCategory, &products.ProdPeriod,
                        &products.ProdPeriodFormat, &products.ProdWeight}) {
      *texts = {"", ""};
    }
    products.IdxEAN = products.IdxSupplierCode = products.IdxBuyerCode = {0, 1};
    products.IdxName = {1, 0};
    dialog.cboxEANProd.setRows(products.rowsByEAN());
    dialog.cboxNazwaProd.setRows(products.rowsByName());
    dialog.cboxKodSprzed.setRows(products.rowsBySupplierCode());
    dialog.cboxKodAPP.setRows(products.rowsByBuyerCode());
    dialog.cboxEANProd.onChange = [this] { choice.cboxEANProd_Change(); };
    dialog.cboxNazwaProd.onChange = [this] { choice.cboxNazwaProd_Change(); };
    dialog.cboxKodSprzed.onChange = [this] { choice.cboxKodSprzed_Change(); };
    dialog.cboxKodAPP.onChange = [this] { choice.cboxKodAPP_Change(); };
  }

  std::vector<std::string> fields() const {
    return {dialog.txtlEANProdWart.text(), dialog.txtNazwaProdWart.text(), dialog.txtKodKup.text(),
            dialog.txtKodSprzed.text()};
  }
};

TEST_F(ProductChoiceAlone, LeadsFromEachListToTheOthers) {
  dialog.cboxEANProd.setIndex(1);
  EXPECT_THAT(fields(), ElementsAre("4602", "Кофе", "b2", "s2"));
  dialog.cboxNazwaProd.setIndex(1);
  EXPECT_THAT(fields(), ElementsAre("4601", "Чай", "b1", "s1"));
  dialog.cboxKodAPP.setIndex(1);
  EXPECT_THAT(fields(), ElementsAre("4602", "Кофе", "b2", "s2"));
  dialog.cboxKodSprzed.setIndex(0);
  EXPECT_THAT(fields(), ElementsAre("4601", "Чай", "b1", "s1"));
  EXPECT_EQ(choice.ProductChangeSource, 0);
}

TEST_F(ProductChoiceAlone, ARowPastTheIndexIsLikeATypedText) {
  for (DropDownList* list :
       {&dialog.cboxEANProd, &dialog.cboxNazwaProd, &dialog.cboxKodAPP, &dialog.cboxKodSprzed}) {
    list->addRow("новая строка");
    list->setIndex(2);
  }
  EXPECT_THAT(fields(),
              ElementsAre("новая строка", "новая строка", "новая строка", "новая строка"));
  EXPECT_THAT(test.face.boxes(), IsEmpty());
  EXPECT_EQ(choice.ProductChangeSource, 0);
}

/// A program may fill the fields where the lists' own clicks do nothing.
TEST_F(ProductChoiceAlone, KeepsCategoryEAndARateApartWithoutAClick) {
  dialog.cboxKodVAT.onClick = nullptr;
  products.ProdTaxRate[0] = "18";
  products.ProdTaxCategory[0] = "E";
  choice.setFieldsValues(0);
  EXPECT_EQ(dialog.cboxKodVAT.text(), "E");
  EXPECT_EQ(dialog.cboxStawkaVAT.text(), "0");
}

TEST_F(ProductChoiceAlone, TheAmountIsMadeWithoutTheFieldsOwnEvent) {
  dialog.txtIloscPotw.setText("3");
  dialog.txtCenaNetto.onChange = nullptr;
  products.ProdPrice[1] = "2,50";
  choice.setFieldsValues(1);
  EXPECT_EQ(dialog.txtAmount.text(), "7,50");
}

}  // namespace
}  // namespace awizo::test
