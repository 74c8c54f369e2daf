#include "tables/upper/editing/clear_form.h"

#include "support/cells.h"
#include "support/control/desk.h"

namespace awizo::test {
namespace {

class ClearingTheForm : public ::testing::Test, public Desk {};

TEST_F(ClearingTheForm, EmptiesHeaderLinesAndTotals) {
  putLines(2);
  lines.setBackground(1, 1, pink);
  form.txtNrAwiza.setText("WZ");
  form.txtNrZam.setText("Z");
  form.txtCodeByBuyer.setText("77");
  form.txtGoodsIdentity.setText("1");
  form.txtDataAwiza.setDate(makeDate(2020, 1, 1));
  form.txtEstimatedDeliveryDate.setDate(std::nullopt);
  form.txtDespatchAdviceTime.setTime(TimeOfDay{1, 2, 3});
  form.txtEstimatedDeliveryTime.setTime(TimeOfDay{1, 2, 3});
  form.dpDataZam.setDate(makeDate(2020, 1, 1));
  const std::vector<Label*> labels{&form.lblILNKupWart,          &form.lblNameKupWart,
                                   &form.lblILNMiejscaDostValue, &form.lblNazwaMiejscaDostawy,
                                   &form.lblILNSprzedWart,       &form.lblNameSprzedWart};
  for (Label* label : labels) label->setCaption("old");
  form.HeaderBuyerILN = form.HeaderBuyerName = form.HeaderSellerILN = "old";
  totals.setCell(1, GRD_SUMA_LINE_COUNT, "2");

  ClearForm(editor);

  for (const TextField* field :
       {&form.txtNrAwiza, &form.txtNrZam, &form.txtCodeByBuyer, &form.txtGoodsIdentity}) {
    EXPECT_EQ(field->text(), "") << field->name();
  }
  EXPECT_EQ(form.txtDataAwiza.date(), makeDate(2026, 11, 21));
  EXPECT_EQ(form.txtEstimatedDeliveryDate.date(), makeDate(2026, 11, 21));
  EXPECT_EQ(form.txtDespatchAdviceTime.time(), std::nullopt);
  EXPECT_EQ(form.txtEstimatedDeliveryTime.time(), std::nullopt);
  EXPECT_EQ(form.dpDataZam.date(), std::nullopt);
  for (const Label* label : labels) EXPECT_EQ(label->caption(), "") << label->name();
  EXPECT_EQ(form.HeaderBuyerILN + form.HeaderBuyerName + form.HeaderSellerILN, "");
  EXPECT_EQ(lines.rows(), 2);
  EXPECT_EQ(TestEditor::row(lines, 1), lineCells());
  EXPECT_EQ(lines.look(1, 1).background, white);
  EXPECT_EQ(session.LineCount, 0);
  EXPECT_EQ(form.ValidLineCount, 0);
  EXPECT_EQ(TestEditor::row(totals, 1), std::vector<std::string>(3));
}

TEST_F(ClearingTheForm, LeavesThePackagesAndTheRestOfTheHeader) {
  putPackages(2, [](int) { return 0; });
  form.HeaderSellerName = "seller";
  form.lblAdresMiejscaDostawy.setCaption("address");
  form.lblNazwaMiejscaDostWart.setCaption("place");
  form.lblCurrencyWart.setCaption("EUR");
  form.cboxPackageDescription.setIndex(1);
  form.DeliveryILN = "9520002000026";
  ClearForm(editor);
  EXPECT_EQ(packages.rows(), 3);
  EXPECT_EQ(packages.cell(2, GRD_OPAK_SERIAL), "3");
  EXPECT_EQ(session.IloscPozycjiOpak, 2);
  EXPECT_EQ(form.LastPackageSerial, 3);
  EXPECT_EQ(form.HeaderSellerName, "seller");
  EXPECT_EQ(form.lblAdresMiejscaDostawy.caption(), "address");
  EXPECT_EQ(form.lblNazwaMiejscaDostWart.caption(), "place");
  EXPECT_EQ(form.lblCurrencyWart.caption(), "EUR");
  EXPECT_EQ(form.cboxPackageDescription.index(), 1);
  EXPECT_EQ(form.DeliveryILN, "9520002000026");
}

}  // namespace
}  // namespace awizo::test
