#include "on_line_start_fixture.h"

namespace awizo::test {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Pair;

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

TEST_F(OnLineStart, TheUserIsToldWhatIsBeingDone) {
  startWith(catalogueReply, placesReply, "<none/>");
  EXPECT_THAT(face.works(), ElementsAre("", "Загрузка данных партнёра…", "Загрузка каталога…",
                                        "Загрузка мест доставки…", "Получение заказа…"));
  EXPECT_EQ(face.worksGoingOn, 0);
}

TEST_F(OnLineStart, TakesAddressesAndCookieFromThePage) {
  startWith("<none/>", "<none/>", "<none/>");
  EXPECT_EQ(form.PartnersUrl, "http://firm.example/app/Partners.aspx?format=xml");
  EXPECT_EQ(form.UploadUrl, "http://firm.example/app/partner/Upload.aspx");
  EXPECT_EQ(form.OrderDataUrl, "http://firm.example/app/partner/OrderData.aspx");
  EXPECT_EQ(session.SessionCookie, "SID=abc");
}

TEST_F(OnLineStart, OffInSmallLettersIsOnLineAndNeedsNoPartnersFile) {
  bag.values["OnLine"] = "off";
  startWith("<none/>", "<none/>", "<none/>");
  EXPECT_EQ(http.sent.size(), 4U);
  EXPECT_THAT(boxes(), IsEmpty());
  EXPECT_TRUE(finished());
}

TEST_F(OnLineStart, OffInSmallLettersGoesOnWithoutAPageAndAPartnersFile) {
  bag.values["OnLine"] = "off";
  page.pageCookie.reset();
  start();
  EXPECT_THAT(http.sent, IsEmpty());
  EXPECT_THAT(boxes(), IsEmpty());
  EXPECT_TRUE(finished());
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

TEST_F(OnLineStart, ALaterStartOffLineReadsItWhateverEncodingTheReplyDeclared) {
  http.reply("<?xml version=\"1.0\" encoding=\"UTF-7\"?>" + partnerInfo("ООО Покупатель"));
  for (int exchange = 2; exchange <= 4; ++exchange) http.reply("<none/>");
  start();
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
  EXPECT_EQ(form.HeaderBuyerILN, "");
  EXPECT_EQ(form.lblNameKupWart.caption(), "");
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

TEST_F(OnLineStart, ForgetsNoCatalogueAtAnyOtherStatus) {
  for (const char* status : {"NONE", "ERROR", ""}) {
    TestControl other;
    other.prepareFolder();
    other.preparePage();
    other.http.reply(partnerInfo("ООО Покупатель"));
    other.http.reply("<document-response><status>" + std::string(status) +
                     "</status></document-response>");
    other.http.reply("<none/>");
    other.http.reply("<none/>");
    other.create();
    other.session.ProductCatalogLoaded = true;
    other.control.UserControl_Show();
    EXPECT_TRUE(other.session.ProductCatalogLoaded) << status;
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

}  // namespace
}  // namespace awizo::test
