#include "service/exchanges.h"

#include "support/test_editor.h"

namespace awizo::test {
namespace {

TEST(BaseUrl, EndsWithTheSecondLastSlash) {
  EXPECT_EQ(GetBaseUrl("https://firm.example/app/pages/desadv.html"), "https://firm.example/app/");
}

TEST(BaseUrl, LosesAFolderWhereThePageIsOneLevelUnderTheApplication) {
  EXPECT_EQ(GetBaseUrl("https://firm.example/app/desadv.html"), "https://firm.example/");
}

TEST(BaseUrl, CountsSlashesOfTheHostToo) {
  EXPECT_EQ(GetBaseUrl("https://firm.example/page"), "https://");
  EXPECT_EQ(GetBaseUrl("a/b/"), "a/");
}

TEST(BaseUrl, IsEmptyWithFewerThanTwoSlashes) {
  EXPECT_EQ(GetBaseUrl(""), "");
  EXPECT_EQ(GetBaseUrl("page.html"), "");
  EXPECT_EQ(GetBaseUrl("app/page.html"), "");
  EXPECT_EQ(GetBaseUrl("/page.html"), "");
}

TEST(BaseUrl, IsOneSlashWhereTheAddressBeginsWithTwo) { EXPECT_EQ(GetBaseUrl("//page"), "/"); }

TEST(ServiceAddresses, GrowOutOfTheBaseAddress) {
  const std::string base = "http://firm.example/app/";
  EXPECT_EQ(partnersUrl(base), "http://firm.example/app/Partners.aspx?format=xml");
  EXPECT_EQ(localizationCatalogueUrl(base), "http://firm.example/app/Dictionary.aspx");
}

TEST(ServiceAddresses, KeepTheDoubledSlashOfTheProductCatalogue) {
  EXPECT_EQ(productCatalogueUrl("http://firm.example/app/"),
            "http://firm.example/app//GetDocument.aspx");
}

TEST(ServiceAddresses, TakeThePartnersPieceAsItStands) {
  EXPECT_EQ(uploadUrl("http://h/", "partners/7"), "http://h/partners/7/Upload.aspx");
  EXPECT_EQ(orderDataUrl("http://h/", "/x/"), "http://h//x//OrderData.aspx");
  EXPECT_EQ(uploadUrl("", ""), "/Upload.aspx");
}

class Requests : public ::testing::Test {
 protected:
  TestSurroundings surroundings;
  const Xml& xml = surroundings.xml;

  static std::string textOf(const std::unique_ptr<XmlDocument>& document) {
    return document->root() ? document->root().xml() : "";
  }
};

TEST_F(Requests, PartnerInfoNamesTheBuyer) {
  EXPECT_EQ(textOf(partnerInfoRequest(xml, "4607000000017")),
            "<partners-request><partner-iln>4607000000017</partner-iln>"
            "<info-name>INFO</info-name></partners-request>");
}

TEST_F(Requests, ProductCatalogueHasAnEmptyDateAndADirection) {
  EXPECT_EQ(textOf(productCatalogueRequest(xml, "4607000000017")),
            "<document-request><partner-iln>4607000000017</partner-iln>"
            "<type>PRODUCTCATALOG</type><version>VIRDV3R1</version><date-from/>"
            "<direction>OUT</direction></document-request>");
}

TEST_F(Requests, LocalizationCatalogueHasNoDirection) {
  EXPECT_EQ(textOf(localizationCatalogueRequest(xml, "4607000000017")),
            "<dictionary-request><partner-iln>4607000000017</partner-iln>"
            "<type>PARTYINFORMATION</type><version>VIRDV0R0</version><date-from/>"
            "</dictionary-request>");
}

TEST_F(Requests, OrderIsDeletedOnceItWasHandedOut) {
  EXPECT_EQ(textOf(orderRequest(xml)),
            "<order-request><deleteafter>true</deleteafter></order-request>");
}

TEST_F(Requests, AnIlnIsNotEscapedSoASpecialCharacterGivesAnEmptyDocument) {
  EXPECT_EQ(textOf(partnerInfoRequest(xml, "A&B")), "");
  EXPECT_EQ(textOf(productCatalogueRequest(xml, "<")), "");
  EXPECT_EQ(textOf(localizationCatalogueRequest(xml, "&")), "");
}

}  // namespace
}  // namespace awizo::test
