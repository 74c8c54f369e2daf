#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

#include "demo/running_service.h"
#include "demo/xml_file.h"
#include "support/files/files.h"

namespace awizo::demo {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

std::string statusOf(const RunningService::Reply& reply) {
  return XmlFile::parse(reply.body).text("/send-document-response/submission-status");
}

TEST(PartnerInfo, ComesWithTaxNumberNameAndAccountOfTheBuyer) {
  const RunningService service;
  const auto reply = service.post(partnerInfoPath, partnerInfoRequest);
  EXPECT_EQ(reply.status, 200);
  EXPECT_EQ(reply.contentType, "text/xml; charset=utf-8");
  const XmlFile document = XmlFile::parse(reply.body);
  const std::string info = "/partner-info-response/partner-info/info/";
  EXPECT_EQ(document.text(info + "nip"), "7800000000");
  EXPECT_EQ(document.text(info + "name"), "АО «Магазины рядом»");
  EXPECT_EQ(document.text(info + "account"), "40702810000000000202");
}

TEST(PartnerInfo, OfAnotherPartnerIsNotGiven) {
  const RunningService service;
  const auto reply = service.post(partnerInfoPath,
                                  "<partners-request><partner-iln>123</partner-iln>"
                                  "<info-name>INFO</info-name></partners-request>");
  const XmlFile document = XmlFile::parse(reply.body);
  EXPECT_EQ(document.count("/partner-info-response/partner-info"), 0U);
  EXPECT_EQ(document.text("/partner-info-response/description"),
            "В запросе /partners-request/partner-iln равно '123', а не '9520002000019'");
}

TEST(PartnerInfo, IsOnAPageThatWantsItsFormatNamed) {
  const RunningService service;
  EXPECT_EQ(service.post("/vird/Partners.aspx", partnerInfoRequest).status, 404);
}

TEST(PartnerInfo, OfAnEmptyDocumentIsNotGiven) {
  const RunningService service;
  const XmlFile document = XmlFile::parse(service.post(partnerInfoPath, "").body);
  EXPECT_EQ(document.text("/partner-info-response/description"),
            "Запрос не является документом XML");
}

TEST(ProductCatalogue, ComesChangedBehindADoubledSlash) {
  const RunningService service;
  const auto reply = service.post("/vird//GetDocument.aspx", catalogueRequest);
  EXPECT_EQ(reply.status, 200);
  const XmlFile document = XmlFile::parse(reply.body);
  EXPECT_EQ(document.text("/document-response/status"), "CHANGED");
  EXPECT_EQ(document.count("/document-response/document-content/Document-ProductCatalogue"
                           "/ProductCatalogue-Lines/Line"),
            200U);
}

TEST(ProductCatalogue, ComesFromTheRootOfTheAddressToo) {
  const RunningService service;
  EXPECT_THAT(service.post("//GetDocument.aspx", catalogueRequest).body,
              HasSubstr("<status>CHANGED</status>"));
}

TEST(ProductCatalogue, OfAnotherTypeIsAnError) {
  const RunningService service;
  const auto reply = service.post(cataloguePath, placesRequest);
  EXPECT_EQ(XmlFile::parse(reply.body).text("/document-response/status"), "ERROR");
}

TEST(DeliveryPlaces, ComeChanged) {
  const RunningService service;
  const XmlFile document = XmlFile::parse(service.post(placesPath, placesRequest).body);
  EXPECT_EQ(document.text("/dictionary-response/status"), "CHANGED");
  EXPECT_EQ(document.count("/dictionary-response/document-content/Document-LocalizationsCatalog"
                           "/localizations/localization"),
            12U);
}

TEST(DeliveryPlaces, OfAnotherPartnerAreAnError) {
  const RunningService service;
  const XmlFile document = XmlFile::parse(service.post(placesPath, "<dictionary-request/>").body);
  EXPECT_EQ(document.text("/dictionary-response/status"), "ERROR");
}

TEST(WaitingOrder, IsHandedOutOnceAndThenGone) {
  const RunningService service;
  const std::string order = "/receive-document-response/document-content/Document-Order";
  const XmlFile first = XmlFile::parse(service.post(orderPath, orderRequest).body);
  EXPECT_EQ(first.text(order + "/Order-Header/OrderNumber"), "ЗК-2026/1147");
  EXPECT_EQ(first.count(order + "/Order-Lines/Line"), 25U);
  const XmlFile second = XmlFile::parse(service.post(orderPath, orderRequest).body);
  EXPECT_EQ(second.count("/receive-document-response"), 1U);
  EXPECT_EQ(second.count(order), 0U);
}

TEST(WaitingOrder, StaysUnlessItsDeletionIsAskedFor) {
  const RunningService service;
  const std::string keep = "<order-request><deleteafter>false</deleteafter></order-request>";
  EXPECT_THAT(service.post(orderPath, keep).body, HasSubstr("<Document-Order>"));
  EXPECT_THAT(service.post(orderPath, orderRequest).body, HasSubstr("<Document-Order>"));
}

TEST(WaitingOrder, WaitsAgainAfterAReset) {
  const RunningService service;
  service.post(orderPath, orderRequest);
  service.post("/_reset", "");
  EXPECT_THAT(service.post(orderPath, orderRequest).body, HasSubstr("<Document-Order>"));
}

TEST(PostedDocument, IsKeptByteForByteAndAnsweredOk) {
  const RunningService service;
  const std::string advice =
      "<Document-DespatchAdvice>\r\n <a>Ж&amp;</a></Document-DespatchAdvice>";
  EXPECT_EQ(statusOf(service.post(uploadPath, advice)), "OK");
  ASSERT_THAT(service.postedFiles(), ElementsAre("despatch-advice-0001.xml"));
  EXPECT_EQ(test::readFile(service.postedFolder() / "despatch-advice-0001.xml"), advice);
}

TEST(PostedDocument, LeavesEarlierOnesAlone) {
  const RunningService service;
  std::filesystem::create_directory(service.postedFolder());
  test::writeFile(service.postedFolder() / "despatch-advice-0001.xml", "earlier");
  EXPECT_EQ(statusOf(service.post(uploadPath, "<a/>")), "OK");
  EXPECT_EQ(statusOf(service.post(uploadPath, "<b/>")), "OK");
  EXPECT_EQ(test::readFile(service.postedFolder() / "despatch-advice-0001.xml"), "earlier");
  EXPECT_EQ(test::readFile(service.postedFolder() / "despatch-advice-0002.xml"), "<a/>");
  EXPECT_EQ(test::readFile(service.postedFolder() / "despatch-advice-0003.xml"), "<b/>");
}

TEST(PostedDocument, ThatIsNotWellFormedIsRefusedWithItsLine) {
  const RunningService service;
  EXPECT_EQ(statusOf(service.post(uploadPath, "<a>\n<b>\n</a>")),
            "Документ не принят: ошибка XML в строке 3.");
  EXPECT_THAT(service.postedFiles(), IsEmpty());
}

TEST(PostedDocument, ThatIsEmptyIsRefused) {
  const RunningService service;
  EXPECT_EQ(statusOf(service.post(uploadPath, "")), "Документ не принят: он пуст.");
  EXPECT_THAT(service.postedFiles(), IsEmpty());
}

TEST(PostedDocument, ThatIsAMillionLevelsDeepIsRefused) {
  const RunningService service;
  std::string deep;
  for (int i = 0; i < 1'000'000; ++i) deep += "<a>";
  for (int i = 0; i < 1'000'000; ++i) deep += "</a>";
  EXPECT_THAT(statusOf(service.post(uploadPath, deep)),
              StartsWith("Документ не принят: ошибка XML"));
}

TEST(PostedDocument, ThatCannotBeStoredIsRefused) {
  const RunningService service;
  test::writeFile(service.postedFolder(), "a file stands where the folder should be");
  EXPECT_EQ(statusOf(service.post(uploadPath, "<a/>")),
            "Документ не принят: его не удалось сохранить.");
}

TEST(HostPage, GivesTheAddressOfTheServiceTwoLevelsAbove) {
  const RunningService service;
  const std::string root = "http://127.0.0.1:" + std::to_string(service.port());
  EXPECT_EQ(service.pageUrl(), root + "/vird/page/editor.html");
  const auto page = service.get("/vird/page/editor.html");
  EXPECT_EQ(page.status, 200);
  EXPECT_EQ(page.contentType, "text/html; charset=utf-8");
  EXPECT_THAT(page.body, HasSubstr("<title>Подтверждение отгрузки</title>"));
}

TEST(HostPage, IsServedUnderAStrictPolicyWithTheFilesBesideIt) {
  const test::TemporaryFolder folder;
  test::writeFile(folder.path() / "editor.html", "<p>");
  test::writeFile(folder.path() / "awizo.mjs", "1");
  test::writeFile(folder.path() / "awizo.wasm", "2");
  std::filesystem::create_directories(folder.path() / "guide/images");
  test::writeFile(folder.path() / "guide/guide.html", "<p>");
  test::writeFile(folder.path() / "guide/images/line-dialog.png", "3");
  const RunningService service({"--page", folder.path().string()});
  httplib::Client client("127.0.0.1", service.port());
  const auto page = client.Get("/vird/page/editor.html");
  EXPECT_THAT(page->get_header_value("Content-Security-Policy"),
              HasSubstr("script-src 'self' 'wasm-unsafe-eval'; style-src 'self'"));
  EXPECT_EQ(page->get_header_value("Set-Cookie"), "vird-demo=1; Path=/");
  EXPECT_EQ(service.get("/vird/page/awizo.mjs").body, "1");
  EXPECT_EQ(service.get("/vird/page/awizo.mjs").contentType, "text/javascript");
  EXPECT_EQ(service.get("/vird/page/awizo.wasm").contentType, "application/wasm");
  EXPECT_EQ(service.get("/vird/page/guide/guide.html").body, "<p>");
  EXPECT_EQ(service.get("/vird/page/guide/images/line-dialog.png").contentType, "image/png");
  EXPECT_EQ(service.get("/vird/page/guide/other/guide.html").status, 404);
  EXPECT_EQ(service.get("/vird/page/%2e%2e/editor.html").status, 404);
  EXPECT_EQ(service.get("/vird/page/..%2feditor.html").status, 404);
}

TEST(Service, KnowsNoOtherPages) {
  const RunningService service;
  EXPECT_EQ(service.post("/vird/Other.aspx", "<a/>").status, 404);
  EXPECT_EQ(service.get("/vird/page/other.html").status, 404);
  EXPECT_EQ(service.get("/vird/Upload.aspx").status, 404);
}

TEST(Service, NeedsNoCookieAndTellsWhatItGot) {
  const RunningService service;
  service.post(orderPath, orderRequest);
  service.post(uploadPath, "<a>Ж</a>", {{"Cookie", ""}});
  service.post(partnerInfoPath, partnerInfoRequest, {{"Cookie", "session=1; x=2"}});
  const std::string seen = service.get("/_requests").body;
  EXPECT_EQ(
      seen,
      R"([{"body":"<order-request><deleteafter>true</deleteafter></order-request>",)"
      R"("contentType":"text/xml","cookie":null,"exchange":"order","target":"/vird/portal/OrderData.aspx"},)"
      R"({"body":"<a>Ж</a>","contentType":"text/xml","cookie":"","exchange":"upload",)"
      R"("target":"/vird/portal/Upload.aspx"},)"
      R"({"body":"<partners-request><partner-iln>9520002000019</partner-iln><info-name>INFO</info-name></partners-request>",)"
      R"("contentType":"text/xml","cookie":"session=1; x=2","exchange":"partner-info",)"
      R"("target":"/vird/Partners.aspx?format=xml"}])");
  service.post("/_reset", "");
  EXPECT_EQ(service.get("/_requests").body, "[]");
}

TEST(Service, ServesWhatLiesInAnotherDataFolder) {
  const test::TemporaryFolder data;
  test::writeFile(data.path() / "partner-info.xml",
                  "<partner-info-response><partner-info><info><iln>42</iln><name>N</name></info>"
                  "</partner-info></partner-info-response>");
  test::writeFile(data.path() / "order.xml",
                  "\xEF\xBB\xBF<?xml version=\"1.0\"?>\n<Document-Order/>");
  const RunningService service({"--data", data.path().string()});
  EXPECT_THAT(service
                  .post(partnerInfoPath,
                        "<partners-request><partner-iln>42</partner-iln>"
                        "<info-name>INFO</info-name></partners-request>")
                  .body,
              HasSubstr("<name>N</name>"));
  EXPECT_THAT(service.post(orderPath, orderRequest).body,
              HasSubstr("<document-content>\n<Document-Order/></document-content>"));
}

TEST(Service, WithoutACatalogueAnswersWithAnError) {
  const test::TemporaryFolder data;
  test::writeFile(data.path() / "partner-info.xml",
                  "<partner-info-response><partner-info><info><iln>9520002000019</iln></info>"
                  "</partner-info></partner-info-response>");
  const RunningService service({"--data", data.path().string()});
  EXPECT_THAT(service.post(cataloguePath, catalogueRequest).body,
              HasSubstr("<status>ERROR</status><description>Каталога нет</description>"));
  EXPECT_THAT(service.post(orderPath, orderRequest).body,
              HasSubstr("<document-content></document-content>"));
}

TEST(Service, HandsOutACatalogueOfManyMegabytesWhole) {
  const test::TemporaryFolder data;
  std::filesystem::copy(test::projectFolder() / "demo/data", data.path(),
                        std::filesystem::copy_options::recursive);
  const std::string big =
      "<Document-ProductCatalogue>" + std::string(20'000'000, 'x') + "</Document-ProductCatalogue>";
  test::writeFile(data.path() / "catalogue.xml", big);
  const RunningService service({"--data", data.path().string()});
  const auto reply = service.post(cataloguePath, catalogueRequest);
  EXPECT_TRUE(reply.body.find(big) != std::string::npos);
  service.post("/_faults", "catalogue=cut");
  EXPECT_GT(service.wireReply(cataloguePath, catalogueRequest).size(), 10'000'000U);
}

TEST(Service, RepliesPlainlyToABrowserThatTakesCompressedReplies) {
  const RunningService service;
  const std::string request = orderRequest;
  const std::string reply = service.wireReply(
      std::string("POST ") + orderPath +
      " HTTP/1.1\r\nHost: 127.0.0.1\r\nAccept-Encoding: gzip, br\r\nContent-Length: " +
      std::to_string(request.size()) + "\r\n\r\n" + request);
  EXPECT_THAT(reply, HasSubstr("<Document-Order>"));
}

TEST(Service, DoesNotStartWithoutItsDataFolder) {
  EXPECT_THROW(RunningService({"--data", "/no/such/folder"}), std::runtime_error);
}

TEST(Service, DoesNotShareItsPort) {
  const RunningService service;
  EXPECT_THROW(RunningService({"--port", std::to_string(service.port())}), std::runtime_error);
}

}  // namespace
}  // namespace awizo::demo
