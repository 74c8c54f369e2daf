#include "platform/text.h"
#include "read_order.h"

namespace awizo::test {
namespace {

using ::testing::IsEmpty;

/// Every field of the header holds something of an earlier document.
struct OrderReaderOverAnOldHeader : OrderReader {
  OrderReaderOverAnOldHeader() {
    form.txtNrZam.setText("old");
    form.dpDataZam.setDate(makeDate(2020, 1, 1));
    form.txtNrAwiza.setText("old");
    for (Label* label : partyLabels()) label->setCaption("old");
    form.txtCodeByBuyer.setText("old");
    form.DeliveryILN = "old";
    form.txtEstimatedDeliveryDate.setDate(makeDate(2020, 1, 1));
    form.txtDespatchAdviceTime.setTime(TimeOfDay{1, 2, 3});
    form.txtEstimatedDeliveryTime.setTime(TimeOfDay{4, 5, 6});
    form.lblCurrencyWart.setCaption("old");
  }

  std::vector<Label*> partyLabels() {
    return {&form.lblILNKupWart, &form.lblNameKupWart, &form.lblILNSprzedWart,
            &form.lblNameSprzedWart};
  }
  /// Reads the full header with one value that can't be read.
  void readHeaderWithout(std::string_view value, std::string_view wrong) {
    const std::string header = replaceAll(fullHeader, value, wrong);
    ASSERT_NE(header, fullHeader);
    readHeader(header);
    expectFailure("Type mismatch");
  }
};

TEST_F(OrderReader, FillsTheHeader) {
  form.txtNrAwiza.setText("old");
  form.txtDespatchAdviceTime.setTime(TimeOfDay{1, 2, 3});
  form.lblNiepelnaWagaKom.setCaption("old");
  readHeader(fullHeader);
  EXPECT_EQ(form.txtNrZam.text(), "ORD-7");
  EXPECT_EQ(form.dpDataZam.date(), makeDate(2026, 11, 2));
  EXPECT_EQ(form.txtNrAwiza.text(), "");
  EXPECT_EQ(form.txtCodeByBuyer.text(), "77");
  EXPECT_EQ(form.DeliveryILN, "9520002000026");
  EXPECT_EQ(form.lblILNMiejscaDostValue.caption(), "9520002000026");
  EXPECT_EQ(form.txtEstimatedDeliveryDate.date(), makeDate(2026, 12, 1));
  EXPECT_EQ(form.txtDespatchAdviceTime.time(), std::nullopt);
  EXPECT_EQ(form.txtEstimatedDeliveryTime.time(), (TimeOfDay{14, 30, 0}));
  EXPECT_EQ(form.lblCurrencyWart.caption(), "EUR");
  EXPECT_EQ(form.lblNiepelnaWagaKom.caption(), "");
  expectNoBox();
}

TEST_F(OrderReader, ShowsThePartiesOfTheSessionAndNotThoseOfTheOrder) {
  readHeader(fullHeader);
  EXPECT_EQ(form.lblILNKupWart.caption(), "9520002000019");
  EXPECT_EQ(form.lblNameKupWart.caption(), "Покупатель");
  EXPECT_EQ(form.lblILNSprzedWart.caption(), "9520001000010");
  EXPECT_EQ(form.lblNameSprzedWart.caption(), "Продавец");
}

TEST_F(OrderReader, FillsAnEmptyHeaderWithFallBacks) {
  form.txtCodeByBuyer.setText("old");
  form.DeliveryILN = "old";
  form.lblCurrencyWart.setCaption("old");
  form.lblNazwaMiejscaDostawy.setCaption("old");
  readHeader("");
  EXPECT_EQ(form.txtNrZam.text(), "-1");
  EXPECT_EQ(form.dpDataZam.date(), std::nullopt);
  EXPECT_EQ(form.txtCodeByBuyer.text(), "");
  EXPECT_EQ(form.DeliveryILN, "");
  EXPECT_EQ(form.lblILNMiejscaDostValue.caption(), "");
  EXPECT_EQ(form.lblNazwaMiejscaDostawy.caption(), "");
  EXPECT_EQ(form.txtEstimatedDeliveryDate.date(), makeDate(2026, 11, 21));
  EXPECT_EQ(form.txtEstimatedDeliveryTime.time(), std::nullopt);
  EXPECT_EQ(form.lblCurrencyWart.caption(), "RUR");
  expectNoBox();
}

TEST_F(OrderReader, AnOrderNumberThatIsThereAndEmptyIsEmpty) {
  readHeader("<Order-Header><OrderNumber/></Order-Header>");
  EXPECT_EQ(form.txtNrZam.text(), "");
}

TEST_F(OrderReader, ADeliveryDateOfMinusOneIsToday) {
  for (const char* missing : {"-1", "-1,00", "1-"}) {
    form.txtEstimatedDeliveryDate.setDate(makeDate(2020, 1, 1));
    readHeader(std::string("<Order-Header><ExpectedDeliveryDate>") + missing +
               "</ExpectedDeliveryDate></Order-Header>");
    EXPECT_EQ(form.txtEstimatedDeliveryDate.date(), makeDate(2026, 11, 21)) << missing;
  }
  expectNoBox();
}

TEST_F(OrderReader, ReadsDatesByTheLocale) {
  readHeader(
      "<Order-Header><OrderDate>02.03.2026</OrderDate>"
      "<ExpectedDeliveryDate>2026-01-11</ExpectedDeliveryDate></Order-Header>");
  EXPECT_EQ(form.dpDataZam.date(), makeDate(2026, 3, 2));
  EXPECT_EQ(form.txtEstimatedDeliveryDate.date(), makeDate(2026, 1, 11));
}

TEST_F(OrderReaderInAPointLocale, ReadsDatesAndTimesByTheLocale) {
  readHeader(
      "<Order-Header><OrderDate>02/03/2026</OrderDate>"
      "<ExpectedDeliveryDate>2026-01-11</ExpectedDeliveryDate>"
      "<ExpectedDeliveryTime>2:30 PM</ExpectedDeliveryTime></Order-Header>");
  EXPECT_EQ(form.dpDataZam.date(), makeDate(2026, 2, 3));
  EXPECT_EQ(form.txtEstimatedDeliveryDate.date(), makeDate(2026, 1, 11));
  EXPECT_EQ(form.txtEstimatedDeliveryTime.time(), (TimeOfDay{14, 30, 0}));
  expectNoBox();
}

TEST_F(OrderReader, AnOrderDateThatIsNoneEndsTheReading) {
  readHeader(
      "<Order-Header><OrderNumber>9</OrderNumber><OrderDate>soon</OrderDate></Order-Header>");
  expectFailure("Type mismatch");
  EXPECT_EQ(form.txtNrZam.text(), "9");
}

TEST_F(OrderReader, AnOrderDateBeforeThePickersTimeEndsTheReading) {
  readHeader("<Order-Header><OrderDate>1500-01-01</OrderDate></Order-Header>");
  expectFailure(
      "A date was specified that does not fall within the MinDate and MaxDate properties");
}

TEST_F(OrderReader, ADeliveryDateOrTimeThatIsNoneEndsTheReading) {
  readHeader("<Order-Header><ExpectedDeliveryDate>soon</ExpectedDeliveryDate></Order-Header>");
  expectFailure("Type mismatch");
  readHeader("<Order-Header><ExpectedDeliveryTime>soon</ExpectedDeliveryTime></Order-Header>");
  expectFailure("Type mismatch");
}

// Fields keep what they hold from the value on at which the reading ended.

TEST_F(OrderReaderOverAnOldHeader, AnOrderDateThatIsNoneKeepsAllBehindTheOrderNumber) {
  readHeaderWithout("<OrderDate>2026-11-02", "<OrderDate>soon");
  EXPECT_EQ(form.txtNrZam.text(), "ORD-7");
  EXPECT_EQ(form.dpDataZam.date(), makeDate(2020, 1, 1));
  EXPECT_EQ(form.txtNrAwiza.text(), "old");
  for (const Label* label : partyLabels()) EXPECT_EQ(label->caption(), "old") << label->name();
  EXPECT_EQ(form.txtCodeByBuyer.text(), "old");
  EXPECT_EQ(form.DeliveryILN, "old");
}

TEST_F(OrderReaderOverAnOldHeader, ADeliveryDateThatIsNoneKeepsAllBehindTheDeliveryPlace) {
  readHeaderWithout("<ExpectedDeliveryDate>2026-12-01", "<ExpectedDeliveryDate>soon");
  EXPECT_EQ(form.dpDataZam.date(), makeDate(2026, 11, 2));
  EXPECT_EQ(form.txtNrAwiza.text(), "");
  for (const Label* label : partyLabels()) EXPECT_NE(label->caption(), "old") << label->name();
  EXPECT_EQ(form.txtCodeByBuyer.text(), "77");
  EXPECT_EQ(form.DeliveryILN, "9520002000026");
  EXPECT_EQ(form.lblILNMiejscaDostValue.caption(), "9520002000026");
  EXPECT_EQ(form.txtEstimatedDeliveryDate.date(), makeDate(2020, 1, 1));
  EXPECT_EQ(form.txtDespatchAdviceTime.time(), (TimeOfDay{1, 2, 3}));
  EXPECT_EQ(form.txtEstimatedDeliveryTime.time(), (TimeOfDay{4, 5, 6}));
  EXPECT_EQ(form.lblCurrencyWart.caption(), "old");
}

TEST_F(OrderReaderOverAnOldHeader, ADeliveryTimeThatIsNoneKeepsTheCurrency) {
  readHeaderWithout("<ExpectedDeliveryTime>14:30", "<ExpectedDeliveryTime>soon");
  EXPECT_EQ(form.txtEstimatedDeliveryDate.date(), makeDate(2026, 12, 1));
  EXPECT_EQ(form.txtDespatchAdviceTime.time(), std::nullopt);
  EXPECT_EQ(form.txtEstimatedDeliveryTime.time(), (TimeOfDay{4, 5, 6}));
  EXPECT_EQ(form.lblCurrencyWart.caption(), "old");
}

TEST_F(OrderReader, ShowsTheDeliveryPlaceFromItsCatalogue) {
  test.session.LocalizationsLoaded = true;
  test.session.LocalizationsDom->loadText(
      "<dictionary-response><document-content><Document-LocalizationsCatalog><localizations>"
      "<localization><iln>9520002000026</iln><number>Магазин 1</number>"
      "<address>ул. Мира, 1</address></localization>"
      "</localizations></Document-LocalizationsCatalog></document-content></dictionary-response>");
  readHeader(fullHeader);
  EXPECT_EQ(form.lblNazwaMiejscaDostawy.caption(), "Магазин 1");
  EXPECT_EQ(form.lblAdresMiejscaDostawy.caption(), "ул. Мира, 1");
}

}  // namespace
}  // namespace awizo::test
