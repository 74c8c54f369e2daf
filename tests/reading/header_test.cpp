#include <algorithm>

#include "platform/text.h"
#include "reading_desk.h"

namespace awizo::test {
namespace {

using ::testing::Contains;
using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::Not;

class ReadingTheHeader : public ::testing::Test, public ReadingDesk {
 protected:
  explicit ReadingTheHeader(const char* localeName = "ru_RU") : ReadingDesk(localeName) {}

  void readHeader(const std::string& values) {
    AdvicePieces document;
    document.header = "<DespatchAdvice-Header>" + values + "</DespatchAdvice-Header>";
    read(document);
  }
  void readParties(const std::string& others) {
    AdvicePieces document;
    document.parties =
        "<DespatchAdvice-Parties><Buyer><ILN>9520002000019</ILN></Buyer><Seller>"
        "<ILN>9520001000010</ILN></Seller>" +
        others + "</DespatchAdvice-Parties>";
    read(document);
  }
  void readPackageHeader(const std::string& values) {
    AdvicePieces document;
    document.consignment =
        "<DespatchAdvice-Consignment><Packing-Sequence><PackageId>1</PackageId>"
        "<Package-Identification>" +
        values +
        "</Package-Identification></Packing-Sequence>"
        "</DespatchAdvice-Consignment>";
    read(document);
  }
};

/// The values of the document that the form holds, by their elements, in the order in which they
/// are read.
std::vector<std::string> valuesTaken(const AwizoForm& form) {
  std::vector<std::string> taken;
  const auto note = [&](const char* element, bool isThere) {
    if (isThere) taken.emplace_back(element);
  };
  note("CodeByBuyer", form.txtCodeByBuyer.text() == "77");
  note("DespatchAdviceNumber", form.txtNrAwiza.text() == "WZ-7");
  note("DespatchAdviceDate", form.txtDataAwiza.date() == makeDate(2026, 11, 2));
  note("BuyerOrderNumber", form.txtNrZam.text() == "ORD-7");
  note("OrderDate", form.dpDataZam.date() == makeDate(2026, 10, 30));
  note("EstimatedDeliveryDate", form.txtEstimatedDeliveryDate.date() == makeDate(2026, 12, 1));
  note("EstimatedDeliveryTime", form.txtEstimatedDeliveryTime.time() == TimeOfDay{14, 45, 0});
  note("DespatchAdviceTime", form.txtDespatchAdviceTime.time() == TimeOfDay{8, 30, 0});
  note("DeliveryPoint", form.DeliveryILN == "9520002000026");
  note("GoodsIdentity", form.txtGoodsIdentity.text() == "5");
  return taken;
}

struct ReadingTheHeaderInAPointLocale : ReadingTheHeader {
  ReadingTheHeaderInAPointLocale() : ReadingTheHeader("en_US") {}
};

TEST_F(ReadingTheHeader, EveryValueReachesItsField) {
  form.lblCurrencyWart.setCaption("USD");
  read({});
  EXPECT_EQ(form.txtCodeByBuyer.text(), "77");
  EXPECT_EQ(form.txtNrAwiza.text(), "WZ-7");
  EXPECT_EQ(form.txtDataAwiza.date(), makeDate(2026, 11, 2));
  EXPECT_EQ(form.txtNrZam.text(), "ORD-7");
  EXPECT_EQ(form.dpDataZam.date(), makeDate(2026, 10, 30));
  EXPECT_EQ(form.txtEstimatedDeliveryDate.date(), makeDate(2026, 12, 1));
  EXPECT_EQ(form.txtEstimatedDeliveryTime.time(), (TimeOfDay{14, 45, 0}));
  EXPECT_EQ(form.txtDespatchAdviceTime.time(), (TimeOfDay{8, 30, 0}));
  EXPECT_EQ(form.DeliveryILN, "9520002000026");
  EXPECT_EQ(form.lblILNMiejscaDostValue.caption(), "9520002000026");
  EXPECT_EQ(form.lblILNKupWart.caption(), "9520002000019");
  EXPECT_EQ(form.lblNameKupWart.caption(), "ООО Покупатель");
  EXPECT_EQ(form.lblILNSprzedWart.caption(), "9520001000010");
  EXPECT_EQ(form.lblNameSprzedWart.caption(), "ООО Поставщик");
  // The currency isn't read.
  EXPECT_EQ(form.lblCurrencyWart.caption(), "USD");
  EXPECT_THAT(takeBoxes(), ElementsAre(plainBreak1, "VIRDDesAdv|none|OK|1"));
}

TEST_F(ReadingTheHeader, ADocumentFromAFileIsNoAnswerToAnOrder) {
  form.OrderAnswer = true;
  form.lblNiepelnaWagaKom.setCaption("Не для всех позиций указан вес");
  form.btnEdytuj.setVisible(false);
  // The reset before the reading enables both buttons, the end of the reading enables them again.
  face.whileBoxIsOpen([&](const MessageBox&) {
    EXPECT_TRUE(form.btnUsun.enabled());
    EXPECT_TRUE(form.btnEdytuj.enabled());
    form.btnUsun.setEnabled(false);
    form.btnEdytuj.setEnabled(false);
  });
  read({});
  EXPECT_FALSE(form.OrderAnswer);
  EXPECT_EQ(form.lblNiepelnaWagaKom.caption(), "");
  EXPECT_TRUE(form.btnUsun.enabled());
  EXPECT_TRUE(form.btnEdytuj.enabled());
  EXPECT_TRUE(form.btnEdytuj.visible());
  EXPECT_TRUE(form.enabled());
}

TEST_F(ReadingTheHeader, TheHostIsToldThatTheDocumentIsKept) {
  int kept = 0;
  form.deeds.add([&](const Deed& deed) {
    ++kept;
    EXPECT_EQ(deed.kind, Deed::Kind::read);
    EXPECT_EQ(deed.text, session.LastFilePath);
    EXPECT_EQ(session.LineCount, 1);
  });
  closeNextForm();
  form.btnWczytaj.userClick();
  EXPECT_EQ(kept, 0);
  read({});
  EXPECT_EQ(kept, 1);
}

TEST_F(ReadingTheHeader, MissingDatesAndTimesHaveFallBacksAndAreNotReported) {
  readHeader(
      "<DespatchAdviceNumber>WZ</DespatchAdviceNumber><BuyerOrderNumber>Z</BuyerOrderNumber>");
  EXPECT_EQ(form.txtDataAwiza.date(), makeDate(2026, 11, 21));
  EXPECT_EQ(form.txtEstimatedDeliveryDate.date(), makeDate(2026, 11, 21));
  EXPECT_EQ(form.dpDataZam.date(), std::nullopt);
  EXPECT_EQ(form.txtEstimatedDeliveryTime.time(), std::nullopt);
  EXPECT_EQ(form.txtDespatchAdviceTime.time(), std::nullopt);
  EXPECT_THAT(takeBoxes(), Not(Contains(incomplete)));
}

TEST_F(ReadingTheHeader, EmptyAndMinusOneAreNoDates) {
  for (const char* unusable : {"", "-1"}) {
    const std::string value(unusable);
    readHeader(
        "<DespatchAdviceNumber>WZ</DespatchAdviceNumber><BuyerOrderNumber>Z"
        "</BuyerOrderNumber><DespatchAdviceDate>" +
        value + "</DespatchAdviceDate><EstimatedDeliveryDate>" + value +
        "</EstimatedDeliveryDate>");
    EXPECT_EQ(form.txtDataAwiza.date(), makeDate(2026, 11, 21));
    EXPECT_EQ(form.txtEstimatedDeliveryDate.date(), makeDate(2026, 11, 21));
    EXPECT_THAT(takeBoxes(), Not(Contains(incomplete)));
  }
}

TEST_F(ReadingTheHeader, AMissingNumberIsReportedAndTheRestIsRead) {
  for (const char* number :
       {"", "<DespatchAdviceNumber/>", "<DespatchAdviceNumber>-1</DespatchAdviceNumber>"}) {
    readHeader(number + std::string("<BuyerOrderNumber>Z</BuyerOrderNumber>"));
    EXPECT_EQ(form.txtNrAwiza.text(), "");
    EXPECT_EQ(form.txtNrZam.text(), "Z");
    EXPECT_EQ(session.LineCount, 1);
    EXPECT_EQ(totals.cell(1, GRD_SUMA_QTY_DESPATCHED), "1,500");
    EXPECT_THAT(takeBoxes(), ElementsAre(plainBreak1, "VIRDDesAdv|none|OK|1", incomplete));
    EXPECT_TRUE(form.enabled());
  }
}

TEST_F(ReadingTheHeader, AMissingOrderNumberIsReported) {
  for (const char* number : {"", "<BuyerOrderNumber>-1</BuyerOrderNumber>"}) {
    readHeader("<DespatchAdviceNumber>WZ</DespatchAdviceNumber>" + std::string(number));
    EXPECT_EQ(form.txtNrZam.text(), "");
    EXPECT_THAT(takeBoxes(), ElementsAre(plainBreak1, "VIRDDesAdv|none|OK|1", incomplete));
  }
}

TEST_F(ReadingTheHeader, ADateThatIsNoneEndsTheReading) {
  addPackage({.description = "Поддон"});
  readHeader(
      "<DespatchAdviceNumber>WZ</DespatchAdviceNumber>"
      "<DespatchAdviceDate>soon</DespatchAdviceDate><BuyerOrderNumber>Z</BuyerOrderNumber>");
  EXPECT_THAT(takeBoxes(), ElementsAre(incomplete));
  EXPECT_EQ(form.txtNrAwiza.text(), "WZ");
  EXPECT_EQ(form.txtNrZam.text(), "");
  EXPECT_EQ(session.LineCount, 0);
  EXPECT_EQ(packages.cell(1, GRD_OPAK_DESC), "Поддон");
  EXPECT_TRUE(form.enabled());
}

TEST_F(ReadingTheHeader, EveryOtherDateAndTimeEndsTheReadingToo) {
  for (const char* wrong :
       {"<OrderDate>-1</OrderDate>", "<EstimatedDeliveryDate>1500-01-01</EstimatedDeliveryDate>",
        "<EstimatedDeliveryTime>25:61</EstimatedDeliveryTime>",
        "<DespatchAdviceTime>noon</DespatchAdviceTime>"}) {
    readHeader(wrong);
    EXPECT_THAT(takeBoxes(), ElementsAre(incomplete)) << wrong;
  }
}

/// The values are taken in their order, so those after the wrong one are missing.
TEST(ReadingAWrongHeader, EndsAtTheValueThatIsWrong) {
  const std::vector<std::string> order{
      "CodeByBuyer",   "DespatchAdviceNumber",  "DespatchAdviceDate",    "BuyerOrderNumber",
      "OrderDate",     "EstimatedDeliveryDate", "EstimatedDeliveryTime", "DespatchAdviceTime",
      "DeliveryPoint", "GoodsIdentity"};
  for (const char* wrong : {"DespatchAdviceDate", "OrderDate", "EstimatedDeliveryDate",
                            "EstimatedDeliveryTime", "DespatchAdviceTime"}) {
    ReadingDesk desk;
    AdvicePieces document;
    const std::string tag = "<" + std::string(wrong) + ">";
    document.header = replaceAll(document.header, tag, tag + "x");
    document.consignment = replaceAll(
        document.consignment, "<PackageId>",
        "<Package-Identification><GoodsIdentity>5</GoodsIdentity></Package-Identification>"
        "<PackageId>");
    desk.read(document);
    EXPECT_THAT(desk.takeBoxes(), ElementsAre(ReadingDesk::incomplete)) << wrong;
    const auto end = std::find(order.begin(), order.end(), wrong);
    EXPECT_EQ(valuesTaken(desk.form), std::vector<std::string>(order.begin(), end)) << wrong;
  }
}

/// Nothing that follows the reading is done for a document that ended it.
class ReadingOverAnAnswer : public ReadingTheHeader {
 protected:
  ReadingOverAnAnswer() {
    form.OrderAnswer = true;
    form.lblNiepelnaWagaKom.setCaption("Не для всех позиций указан вес");
    totals.setCell(1, GRD_SUMA_QTY_DESPATCHED, "9,000");
    document.summary =
        "<DespatchAdvice-Summary><TotalQuantity>7</TotalQuantity>"
        "<TotalAmount>8</TotalAmount></DespatchAdvice-Summary>";
  }
  void expectNothingFinished(const std::string& box) {
    read(document);
    EXPECT_THAT(takeBoxes(), ElementsAre(box));
    EXPECT_TRUE(form.OrderAnswer);
    EXPECT_EQ(form.lblNiepelnaWagaKom.caption(), "Не для всех позиций указан вес");
    EXPECT_THAT(TestEditor::row(totals, 1), Each(""));
    EXPECT_TRUE(form.enabled());
  }

  AdvicePieces document;
};

TEST_F(ReadingOverAnAnswer, AnErrorLeavesAnAnswerAndNoTotals) {
  document.header = replaceAll(document.header, "<OrderDate>", "<OrderDate>x");
  expectNothingFinished(incomplete);
}

TEST_F(ReadingOverAnAnswer, AnotherSellerLeavesAnAnswerAndNoTotals) {
  document.parties = replaceAll(document.parties, "9520001000010", "1");
  expectNothingFinished("VIRD|exclamation|OK|Неправильный ILN номер продавца");
}

TEST_F(ReadingOverAnAnswer, AnotherBuyerLeavesAnAnswerAndNoTotals) {
  document.parties = replaceAll(document.parties, "9520002000019", "1");
  expectNothingFinished("VIRD|exclamation|OK|Неправильный ILN номер покупателя.");
}

TEST_F(ReadingTheHeader, DatesAreReadByTheLocale) {
  readHeader("<OrderDate>02.03.2026</OrderDate>");
  EXPECT_EQ(form.dpDataZam.date(), makeDate(2026, 3, 2));
}

TEST_F(ReadingTheHeaderInAPointLocale, DatesAreReadByTheLocale) {
  readHeader("<OrderDate>02/03/2026</OrderDate><DespatchAdviceTime>2:30 PM</DespatchAdviceTime>");
  EXPECT_EQ(form.dpDataZam.date(), makeDate(2026, 2, 3));
  EXPECT_EQ(form.txtDespatchAdviceTime.time(), (TimeOfDay{14, 30, 0}));
}

TEST_F(ReadingTheHeader, WithoutADeliveryPointTheBuyerIsIt) {
  for (const char* point : {"", "<DeliveryPoint><ILN/></DeliveryPoint>",
                            "<DeliveryPoint><ILN>-1</ILN></DeliveryPoint>"}) {
    readParties(point);
    EXPECT_EQ(form.DeliveryILN, "9520002000019");
    EXPECT_EQ(form.lblILNMiejscaDostValue.caption(), "9520002000019");
    EXPECT_THAT(takeBoxes(), Not(Contains(incomplete)));
  }
}

TEST_F(ReadingTheHeader, AMissingCodeOfTheSellerIsEmptyAndNotReported) {
  readParties("");
  EXPECT_EQ(form.txtCodeByBuyer.text(), "");
  EXPECT_THAT(takeBoxes(), Not(Contains(incomplete)));
}

TEST_F(ReadingTheHeader, TheDeliveryPlaceIsShownFromItsCatalogue) {
  session.LocalizationsLoaded = session.LocalizationsDom->loadText(
      "<dictionary-response><document-content><Document-LocalizationsCatalog><localizations>"
      "<localization><iln>9520002000026</iln><number>Магазин 1</number>"
      "<address>ул. Мира, 1</address></localization></localizations>"
      "</Document-LocalizationsCatalog></document-content></dictionary-response>");
  read({});
  EXPECT_EQ(form.lblNazwaMiejscaDostawy.caption(), "Магазин 1");
  EXPECT_EQ(form.lblAdresMiejscaDostawy.caption(), "ул. Мира, 1");
}

TEST_F(ReadingTheHeader, ThePackageHeaderSelectsARow) {
  const std::map<std::string, int> indexes{{"09", 0}, {"201", 1}, {"PK", 2}, {"pk", -1},
                                           {"", -1},  {"-1", -1}, {"XX", -1}};
  for (const auto& [code, index] : indexes) {
    readPackageHeader("<PackageDescription>" + code + "</PackageDescription>");
    EXPECT_EQ(form.cboxPackageDescription.index(), index) << code;
    EXPECT_THAT(takeBoxes(), Not(Contains(incomplete))) << code;
  }
}

TEST_F(ReadingTheHeader, OurOwnDocumentsHaveNoPackageHeader) {
  read({});
  EXPECT_EQ(form.cboxPackageDescription.index(), -1);
  EXPECT_EQ(form.txtGoodsIdentity.text(), "");
}

TEST_F(ReadingTheHeader, TheGoodsIdentityIsReadAndTheQuantityIsNot) {
  readPackageHeader(
      "<GoodsIdentity>354107380000001051</GoodsIdentity>"
      "<PackageQuantity>many</PackageQuantity>");
  EXPECT_EQ(form.txtGoodsIdentity.text(), "354107380000001051");
  EXPECT_THAT(takeBoxes(), Not(Contains(incomplete)));
}

TEST_F(ReadingTheHeader, TheButtonToEditAppearsBeforeTheFirstBreak) {
  form.btnEdytuj.setVisible(false);
  face.whileBoxIsOpen([&](const MessageBox& box) {
    EXPECT_EQ(box.text, "break1");
    EXPECT_TRUE(form.btnEdytuj.visible());
    EXPECT_EQ(session.LineCount, 0);
  });
  read({});
}

}  // namespace
}  // namespace awizo::test
