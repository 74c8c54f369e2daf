#include "platform/forms/table.h"
#include "tables/columns.h"
#include "test_control.h"

namespace awizo::test {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Pair;

const std::string noReply =
    "Bі№d w SendXMLDOMRequest()!|critical|OK|The system cannot locate the resource specified.";
const std::string tooEarly =
    "Bі№d w SendXMLDOMRequest()!|critical|OK|"
    "The data necessary to complete this operation is not yet available.";

const std::string catalogueReply =
    "<document-response><status>CHANGED</status><document-content><Document-ProductCatalogue>"
    "<ProductCatalogue-Lines><Line><Line-Item><EAN>4607000000116</EAN>"
    "<ItemDescription>Чай</ItemDescription></Line-Item></Line></ProductCatalogue-Lines>"
    "</Document-ProductCatalogue></document-content></document-response>";

const std::string placesReply =
    "<dictionary-response><status>CHANGED</status><document-content>"
    "<Document-LocalizationsCatalog><localizations><localization><number>Склад 1</number>"
    "<iln>9520002000026</iln><address>Тула</address></localization></localizations>"
    "</Document-LocalizationsCatalog></document-content></dictionary-response>";

std::string orderLine(const std::string& ean, const std::string& price) {
  return "<Line><Line-Item><LineNumber>1</LineNumber><EAN>" + ean +
         "</EAN><OrderedQuantity>5</OrderedQuantity><OrderedUnitNetPrice>" + price +
         "</OrderedUnitNetPrice></Line-Item></Line>";
}

std::string orderReply(const std::string& lines) {
  return "<receive-document-response><document-content><Document-Order><Order-Header>"
         "<OrderNumber>Z-1</OrderNumber><OrderDate>2026-11-20</OrderDate></Order-Header>"
         "<Order-Parties><DeliveryPoint><ILN>9520002000026</ILN></DeliveryPoint></Order-Parties>"
         "<Order-Lines>" +
         lines + "</Order-Lines></Document-Order></document-content></receive-document-response>";
}

class OnLineStart : public ::testing::Test, public TestControl {
 protected:
  OnLineStart() {
    prepareFolder();
    preparePage();
  }

  /// Answers in the order of the exchanges, partner info first.
  void startWith(const std::string& catalogue, const std::string& places,
                 const std::string& order) {
    http.reply(partnerInfo("ООО Покупатель"));
    http.reply(catalogue);
    http.reply(places);
    http.reply(order);
    start();
  }
  bool finished() const { return form.txtGoodsIdentity.text() == "0"; }
  std::vector<std::string> addresses() const {
    std::vector<std::string> found;
    for (const SentRequest& request : http.sent) found.push_back(request.url);
    return found;
  }
};

TEST_F(OnLineStart, MakesFourExchangesInOrder) {
  startWith(catalogueReply, placesReply, "<none/>");
  EXPECT_THAT(addresses(), ElementsAre("http://firm.example/app/Partners.aspx?format=xml",
                                       "http://firm.example/app//GetDocument.aspx",
                                       "http://firm.example/app/Dictionary.aspx",
                                       "http://firm.example/app/partner/OrderData.aspx"));
  const std::string iln = "<partner-iln>9520002000019</partner-iln>";
  EXPECT_THAT(http.sent[0].body, HasSubstr("<partners-request>" + iln));
  EXPECT_THAT(http.sent[1].body, HasSubstr("<document-request>" + iln));
  EXPECT_THAT(http.sent[2].body, HasSubstr("<dictionary-request>" + iln));
  EXPECT_THAT(http.sent[3].body, HasSubstr("<order-request>"));
  for (const SentRequest& request : http.sent) {
    EXPECT_EQ(request.method, "POST");
    EXPECT_THAT(request.headers, ElementsAre(Pair("Cookie", "SID=abc")));
  }
  EXPECT_THAT(boxes(), IsEmpty());
  EXPECT_TRUE(finished());
}

TEST_F(OnLineStart, TakesAddressesAndCookieFromThePage) {
  startWith("<none/>", "<none/>", "<none/>");
  EXPECT_EQ(form.PartnersUrl, "http://firm.example/app/Partners.aspx?format=xml");
  EXPECT_EQ(form.UploadUrl, "http://firm.example/app/partner/Upload.aspx");
  EXPECT_EQ(form.OrderDataUrl, "http://firm.example/app/partner/OrderData.aspx");
  EXPECT_EQ(session.SessionCookie, "SID=abc");
}

// Exchange 1, partner info.

TEST_F(OnLineStart, LearnsThePartnerAndKeepsTheReplyAsThePartnersFile) {
  files.put(partnerFile, partnerInfo("старое имя"));
  startWith("<none/>", "<none/>", "<none/>");
  EXPECT_TRUE(session.PartnerInfoLoaded);
  EXPECT_EQ(session.BuyerName, "ООО Покупатель");
  EXPECT_EQ(session.BuyerNIP, "7700000002");
  EXPECT_EQ(session.BuyerAccount, "40703");
  EXPECT_EQ(session.BuyerILN, buyer);
  EXPECT_EQ(form.HeaderBuyerILN, buyer);
  EXPECT_EQ(form.HeaderBuyerName, "ООО Покупатель");
  EXPECT_EQ(form.HeaderSellerILN, seller);
  EXPECT_EQ(form.HeaderSellerName, "ООО Поставщик");
  EXPECT_EQ(form.lblILNKupWart.caption(), buyer);
  EXPECT_EQ(form.lblNameKupWart.caption(), "ООО Покупатель");
  EXPECT_EQ(form.lblILNSprzedWart.caption(), seller);
  EXPECT_EQ(form.lblNameSprzedWart.caption(), "ООО Поставщик");
  EXPECT_THAT(files.bytes(partnerFile), HasSubstr(partnerInfo("ООО Покупатель")));
}

TEST_F(OnLineStart, ALaterStartOffLineReadsWhatItKept) {
  startWith("<none/>", "<none/>", "<none/>");
  TestControl later;
  later.prepareFolder();
  later.bag.values["OnLine"] = "Off";
  later.files.put(partnerFile, files.bytes(partnerFile));
  later.start();
  EXPECT_THAT(later.boxes(), IsEmpty());
  EXPECT_EQ(later.session.BuyerName, "ООО Покупатель");
}

TEST_F(OnLineStart, GoesOnWithAPartnersFileThatIsMissingOrBroken) {
  files.put(partnerFile, "<broken");
  startWith("<none/>", "<none/>", "<none/>");
  EXPECT_THAT(boxes(), IsEmpty());
  EXPECT_TRUE(finished());
}

TEST_F(OnLineStart, IsFatalWhenTheServiceKnowsNoPartner) {
  for (const char* reply : {"", "garbage", "<html/>", "<partner-info-response/>",
                            "<partner-info-response><partner-info/></partner-info-response>"}) {
    TestControl other;
    other.prepareFolder();
    other.preparePage();
    other.http.reply(reply);
    other.start();
    EXPECT_THAT(other.boxes(),
                ElementsAre("VIRD|critical|OK|Неправильный формат XML партнёр инфо."))
        << reply;
    EXPECT_FALSE(other.control.Enabled()) << reply;
    EXPECT_EQ(other.form.txtGoodsIdentity.text(), "") << reply;
    EXPECT_EQ(other.http.sent.size(), 1U) << reply;
    EXPECT_FALSE(other.files.has(partnerFile)) << reply;
  }
}

TEST_F(OnLineStart, IsFatalAfterTwoBoxesWhenTheServiceCantBeReached) {
  start();
  EXPECT_THAT(boxes(), ElementsAre(noReply, tooEarly,
                                   "VIRD|critical|OK|Неправильный формат XML партнёр инфо."));
  EXPECT_FALSE(control.Enabled());
}

TEST_F(OnLineStart, AnIlnThatIsNoXmlSendsAnEmptyDocument) {
  bag.values["PartnerILN"] = "A&B";
  start();
  EXPECT_EQ(http.sent.at(0).body, "");
}

TEST_F(OnLineStart, EndsWithoutAHeaderWhenThePartnersFileCantBeWritten) {
  files.failWriting(partnerFile, errors::diskFull());
  http.reply(partnerInfo("ООО Покупатель"));
  start();
  EXPECT_THAT(boxes(), ElementsAre("Произошла ошибка в UserControl_Show()|critical|OK|Disk full"));
  EXPECT_TRUE(control.Enabled());
  EXPECT_FALSE(finished());
  EXPECT_EQ(session.BuyerName, "ООО Покупатель");
  EXPECT_EQ(http.sent.size(), 1U);
}

// Exchange 2, product catalogue.

TEST_F(OnLineStart, KeepsTheCatalogueAloneOfItsReply) {
  startWith(catalogueReply, "<none/>", "<none/>");
  EXPECT_TRUE(session.ProductCatalogLoaded);
  ASSERT_TRUE(session.ProductCatalogDom->root());
  EXPECT_EQ(session.ProductCatalogDom->root().name(), "Document-ProductCatalogue");
  EXPECT_EQ(
      session.ProductCatalogDom->node()
          .selectSingle("/Document-ProductCatalogue/ProductCatalogue-Lines/Line/Line-Item/EAN")
          .text(),
      "4607000000116");
}

TEST_F(OnLineStart, HasNoCatalogueAtAnyOtherStatus) {
  for (const char* status : {"ERROR", "UNCHANGED", "changed", ""}) {
    TestControl other;
    other.prepareFolder();
    other.preparePage();
    other.http.reply(partnerInfo("ООО Покупатель"));
    other.http.reply("<document-response><status>" + std::string(status) +
                     "</status><document-content><Document-ProductCatalogue/></document-content>"
                     "</document-response>");
    other.http.reply(placesReply);
    other.http.reply("<none/>");
    other.start();
    EXPECT_FALSE(other.session.ProductCatalogLoaded) << status;
    EXPECT_FALSE(other.session.ProductCatalogDom->root()) << status;
    EXPECT_THAT(other.boxes(), IsEmpty()) << status;
    EXPECT_TRUE(other.control.Enabled()) << status;
    EXPECT_TRUE(other.session.LocalizationsLoaded) << status;
  }
}

TEST_F(OnLineStart, MakesTheControlUsableWhenTheServiceReportsAnErrorOfTheCatalogue) {
  for (const bool isError : {true, false}) {
    TestControl other;
    other.prepareFolder();
    other.preparePage();
    other.http.reply(partnerInfo("ООО Покупатель"));
    other.http.reply("<document-response><status>" + std::string(isError ? "ERROR" : "NONE") +
                     "</status></document-response>");
    other.http.reply("<none/>");
    other.http.reply("<none/>");
    other.create();
    other.form.setEnabled(false);
    other.control.UserControl_Show();
    EXPECT_EQ(other.control.Enabled(), isError);
  }
}

TEST_F(OnLineStart, HasNoCatalogueAfterAHostileReply) {
  std::string deep;
  for (int level = 0; level < 1'000'000; ++level) deep += "<a>";
  const std::string bomb =
      "<!DOCTYPE d [<!ENTITY a \"aaaaaaaaaaaaaaaaaaaa\">"
      "<!ENTITY b \"&a;&a;&a;&a;&a;&a;&a;&a;&a;&a;&a;&a;&a;&a;&a;&a;&a;&a;&a;&a;\">"
      "<!ENTITY c \"&b;&b;&b;&b;&b;&b;&b;&b;&b;&b;&b;&b;&b;&b;&b;&b;&b;&b;&b;&b;\">"
      "<!ENTITY e \"&c;&c;&c;&c;&c;&c;&c;&c;&c;&c;&c;&c;&c;&c;&c;&c;&c;&c;&c;&c;\">"
      "<!ENTITY f \"&e;&e;&e;&e;&e;&e;&e;&e;&e;&e;&e;&e;&e;&e;&e;&e;&e;&e;&e;&e;\">"
      "<!ENTITY g \"&f;&f;&f;&f;&f;&f;&f;&f;&f;&f;&f;&f;&f;&f;&f;&f;&f;&f;&f;&f;\">"
      "]><document-response><status>CHANGED</status><document-content>"
      "<Document-ProductCatalogue>&g;</Document-ProductCatalogue></document-content>"
      "</document-response>";
  for (const std::string& reply : {deep, bomb}) {
    TestControl other;
    other.prepareFolder();
    other.preparePage();
    other.http.reply(partnerInfo("ООО Покупатель"));
    other.http.reply(reply);
    other.http.reply(placesReply);
    other.http.reply("<none/>");
    other.start();
    EXPECT_FALSE(other.session.ProductCatalogLoaded);
    EXPECT_TRUE(other.session.LocalizationsLoaded);
    EXPECT_THAT(other.boxes(), IsEmpty());
  }
}

TEST_F(OnLineStart, HasNoCatalogueWhenNoneFollowsTheStatus) {
  startWith("<document-response><status>CHANGED</status></document-response>", "<none/>",
            "<none/>");
  EXPECT_FALSE(session.ProductCatalogLoaded);
  EXPECT_FALSE(session.ProductCatalogDom->root());
  EXPECT_THAT(boxes(), IsEmpty());
}

TEST_F(OnLineStart, GoesOnWithoutTheCatalogueThatCouldNotBeFetched) {
  http.reply(partnerInfo("ООО Покупатель"));
  http.fail(errors::downloadFailed());
  http.reply(placesReply);
  http.reply("<none/>");
  start();
  EXPECT_EQ(face.boxes().size(), 2U);
  EXPECT_FALSE(session.ProductCatalogLoaded);
  EXPECT_TRUE(session.LocalizationsLoaded);
  EXPECT_TRUE(finished());
}

// Exchange 3, delivery places.

TEST_F(OnLineStart, KeepsTheWholeReplyWithTheDeliveryPlaces) {
  startWith("<none/>", placesReply, "<none/>");
  EXPECT_TRUE(session.LocalizationsLoaded);
  ASSERT_TRUE(session.LocalizationsDom->root());
  EXPECT_EQ(session.LocalizationsDom->root().name(), "dictionary-response");
}

TEST_F(OnLineStart, KeepsTheReplyEvenWhenNoPlacesFollowTheStatus) {
  startWith("<none/>", "<dictionary-response><status>CHANGED</status></dictionary-response>",
            "<none/>");
  EXPECT_TRUE(session.LocalizationsLoaded);
  EXPECT_TRUE(session.LocalizationsDom->root());
}

TEST_F(OnLineStart, HasNoPlacesAtAnyOtherStatus) {
  http.reply(partnerInfo("ООО Покупатель"));
  http.reply("<none/>");
  http.reply("<dictionary-response><status>ERROR</status></dictionary-response>");
  http.reply("<none/>");
  create();
  session.LocalizationsLoaded = true;
  control.UserControl_Show();
  EXPECT_FALSE(session.LocalizationsLoaded);
  EXPECT_FALSE(session.LocalizationsDom->root());
  EXPECT_THAT(boxes(), IsEmpty());
}

// Exchange 4, the order.

TEST_F(OnLineStart, StartsFromAnEmptyDocumentWhenNoOrderWaits) {
  startWith(catalogueReply, placesReply, "<receive-document-response/>");
  EXPECT_FALSE(form.OrderAnswer);
  EXPECT_EQ(session.LineCount, 0);
  EXPECT_THAT(face.cursors(), IsEmpty());
  EXPECT_THAT(boxes(), IsEmpty());
  EXPECT_TRUE(finished());
}

TEST_F(OnLineStart, GoesOnWithoutTheOrderThatCouldNotBeFetched) {
  http.reply(partnerInfo("ООО Покупатель"));
  http.reply(catalogueReply);
  http.reply(placesReply);
  start();
  EXPECT_THAT(boxes(), ElementsAre(noReply, tooEarly));
  EXPECT_FALSE(form.OrderAnswer);
  EXPECT_TRUE(finished());
}

TEST_F(OnLineStart, ReadsTheOrderCompletedFromTheCatalogue) {
  startWith(catalogueReply, placesReply, orderReply(orderLine("4607000000116", "2.50")));
  EXPECT_THAT(boxes(), IsEmpty());
  EXPECT_TRUE(form.OrderAnswer);
  EXPECT_EQ(session.LineCount, 1);
  EXPECT_EQ(form.txtNrZam.text(), "Z-1");
  EXPECT_EQ(form.grdPozycje.cell(1, GRD_POZ_NAME), "Чай");
  EXPECT_EQ(form.grdPozycje.cell(1, GRD_POZ_QTY_DESPATCHED), "5,000");
  EXPECT_EQ(form.lblAdresMiejscaDostawy.caption(), "Тула");
  EXPECT_EQ(form.grdSuma.cell(1, GRD_SUMA_LINE_COUNT), "1");
}

TEST_F(OnLineStart, GivesTheOrdersHeaderTheDefaultsOfANewDocument) {
  startWith("<none/>", "<none/>", orderReply(orderLine("1", "2")));
  EXPECT_EQ(form.txtDataAwiza.date(), makeDate(2026, 11, 21));
  EXPECT_EQ(form.cboxPackageDescription.index(), 2);
  EXPECT_EQ(form.txtGoodsIdentity.text(), "0");
}

TEST_F(OnLineStart, PaintsFaultyLinesAndCountsTheOthers) {
  startWith("<none/>", "<none/>",
            orderReply(orderLine("4607000000116", "2.50") + orderLine("ABC", "2.50") +
                       orderLine("4607000000123", "1") + orderLine("", "1")));
  const Table& lines = form.grdPozycje;
  EXPECT_EQ(session.LineCount, 4);
  EXPECT_EQ(form.ValidLineCount, 2);
  for (const int row : {2, 4}) {
    EXPECT_EQ(lines.look(row, 0).background, white);
    for (int column = 1; column <= 21; ++column) {
      EXPECT_EQ(lines.look(row, column).background, (Colour{255, 192, 192})) << column;
    }
    EXPECT_EQ(lines.look(row, 22).background, white);
  }
  for (const int row : {0, 1, 3}) {
    for (int column = 0; column < lines.columns(); ++column) {
      EXPECT_EQ(lines.look(row, column).background, white) << row << " " << column;
    }
  }
  EXPECT_TRUE(control.Enabled());
  EXPECT_TRUE(finished());
}

TEST_F(OnLineStart, WaitsWhileItChecksTheLinesRowByRow) {
  create();
  std::vector<std::string> seen;
  form.grdPozycje.onSelectionChange = [&] {
    seen.push_back(std::to_string(form.grdPozycje.row()) + "," +
                   std::to_string(form.grdPozycje.column()) +
                   (screen.cursor() == Cursor::wait ? " wait" : ""));
  };
  http.reply(partnerInfo("ООО Покупатель"));
  http.reply("<none/>");
  http.reply("<none/>");
  http.reply(orderReply(orderLine("1", "1") + orderLine("2", "1")));
  control.UserControl_Show();
  EXPECT_THAT(seen, Contains("2,1 wait"));
  EXPECT_EQ(face.cursors(), (std::vector<Cursor>{Cursor::wait, Cursor::normal}));
  EXPECT_EQ(screen.cursor(), Cursor::normal);
}

TEST_F(OnLineStart, LeavesTheCurrentCellWhereTheTotalsPutIt) {
  startWith("<none/>", "<none/>", orderReply(orderLine("1", "1") + orderLine("2", "1")));
  EXPECT_EQ(form.grdPozycje.row(), 2);
  EXPECT_EQ(form.grdPozycje.column(), GRD_POZ_NET_AMOUNT);
}

TEST_F(OnLineStart, AnOrderWithoutLinesLeavesAnEmptyTable) {
  startWith("<none/>", "<none/>", orderReply(""));
  EXPECT_THAT(boxes(), IsEmpty());
  EXPECT_TRUE(form.OrderAnswer);
  EXPECT_EQ(session.LineCount, 0);
  EXPECT_EQ(form.grdPozycje.rows(), 2);
  EXPECT_TRUE(finished());
}

TEST_F(OnLineStart, AnOrderThatCantBeReadIsToldAndTheStartUpGoesOn) {
  startWith("<none/>", "<none/>",
            "<receive-document-response><document-content><Document-Order/></document-content>"
            "</receive-document-response>");
  EXPECT_THAT(boxes(), ElementsAre("Произошла ошибка в Wczytaj_Zamowienie()|critical|OK|"
                                   "Object variable or With block variable not set"));
  EXPECT_TRUE(control.Enabled());
  EXPECT_TRUE(finished());
}

TEST_F(OnLineStart, AnOrderOfMoreLinesThanTheTableHoldsEndsItWithItsLinesStanding) {
  std::string lines;
  for (int line = 0; line < 1424; ++line) lines += orderLine("4607000000116", "1");
  startWith("<none/>", "<none/>", orderReply(lines));
  EXPECT_THAT(boxes(), ElementsAre("Произошла ошибка в Wczytaj_Zamowienie()|critical|OK|Overflow",
                                   "Произошла ошибка в UserControl_Show()|critical|OK|Overflow"));
  EXPECT_EQ(form.grdPozycje.cell(1423, GRD_POZ_EAN), "4607000000116");
  EXPECT_EQ(form.ValidLineCount, 1423);
  EXPECT_TRUE(control.Enabled());
  EXPECT_FALSE(finished());
  EXPECT_EQ(screen.cursor(), Cursor::normal);
}

TEST_F(OnLineStart, TakesAnOrderOfAsManyLinesAsTheTableHolds) {
  std::string lines;
  for (int line = 0; line < 1423; ++line) lines += orderLine("4607000000116", "1");
  startWith("<none/>", "<none/>", orderReply(lines));
  EXPECT_THAT(boxes(), IsEmpty());
  EXPECT_EQ(form.ValidLineCount, 1423);
  EXPECT_TRUE(finished());
}

// The log.

TEST_F(OnLineStart, LogsEveryExchangeAtLevel4) {
  bag.values["DebugLevel"] = "4";
  startWith("<none/>", "<none/>", "<none/>");
  const std::string log = logText();
  EXPECT_THAT(log, HasSubstr("21.11.2026 10:15 Request: "
                             "http://firm.example/app/Partners.aspx?format=xml SID=abc\r\n"));
  EXPECT_THAT(log, HasSubstr("Response: " + partnerInfo("ООО Покупатель") + "\r\n"));
  EXPECT_THAT(log, HasSubstr("Request: http://firm.example/app/partner/OrderData.aspx SID=abc"));
}

TEST_F(OnLineStart, LogsNoDocumentAndNoCookieAtLevel2) {
  bag.values["DebugLevel"] = "2";
  startWith("<none/>", "<none/>", "<none/>");
  EXPECT_EQ(logText(), "21.11.2026 10:15 Start logowania...\r\n");
}

TEST(OnLineStartInAPointLocale, ReadsTheOrderWithPoints) {
  TestControl american("en_US");
  american.prepareFolder();
  american.preparePage();
  american.http.reply(TestControl::partnerInfo("Buyer"));
  american.http.reply("<none/>");
  american.http.reply("<none/>");
  american.http.reply(orderReply(orderLine("4607000000116", "2.50")));
  american.start();
  EXPECT_THAT(american.boxes(), IsEmpty());
  EXPECT_EQ(american.form.grdPozycje.cell(1, GRD_POZ_QTY_DESPATCHED), "5.000");
  EXPECT_EQ(american.form.grdPozycje.cell(1, GRD_POZ_PRICE), "2.50");
  EXPECT_EQ(american.form.ValidLineCount, 1);
}

}  // namespace
}  // namespace awizo::test
