// The demo's documents are what the editor is tried and tested with: they must stay as shown here.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "demo/running_service.h"
#include "demo/xml_file.h"
#include "support/files/files.h"

namespace awizo::demo {
namespace {

using testing::Contains;
using testing::Each;
using testing::ElementsAre;
using testing::Ge;
using testing::IsSubsetOf;
using testing::MatchesRegex;
using testing::SizeIs;

constexpr const char* sellerIln = "9520001000010";
constexpr const char* buyerIln = "9520002000019";

/// Whether a number ends in the right GS1 check digit: weights 3 and 1 in turn, from the right.
bool hasCheckDigit(const std::string& number) {
  int sum = 0;
  int weight = 1;
  for (auto digit = number.rbegin(); digit != number.rend(); ++digit) {
    if (*digit < '0' || *digit > '9') return false;
    sum += (*digit - '0') * weight;
    weight = 4 - weight;
  }
  return sum % 10 == 0;
}

MATCHER_P(IsGs1Number, length, "") {
  return arg.size() == static_cast<std::size_t>(length) && hasCheckDigit(arg);
}

template <typename T>
std::set<T> distinct(const std::vector<T>& values) {
  return {values.begin(), values.end()};
}

struct OrderLine {
  std::string number;
  std::string ean;
  std::string price;
};

std::vector<OrderLine> linesOfDemoOrder() {
  const XmlFile order = XmlFile::read("demo/data/order.xml");
  const std::size_t count = order.count("/Document-Order/Order-Lines/Line");
  std::vector<OrderLine> lines;
  for (std::size_t i = 1; i <= count; ++i) {
    const std::string item =
        "/Document-Order/Order-Lines/Line[" + std::to_string(i) + "]/Line-Item/";
    lines.push_back({order.text(item + "LineNumber"), order.text(item + "EAN"),
                     order.text(item + "OrderedUnitNetPrice")});
  }
  return lines;
}

class Catalogue : public testing::Test {
 protected:
  std::vector<std::string> values(const std::string& name) const {
    return catalogue.texts("/Document-ProductCatalogue/ProductCatalogue-Lines/Line/Line-Item/" +
                           name);
  }
  const XmlFile catalogue = XmlFile::read("demo/data/catalogue.xml");
};

TEST_F(Catalogue, HoldsTwoHundredGoodsWithNumbersAndNamesOfTheirOwn) {
  EXPECT_THAT(values("EAN"), SizeIs(200));
  EXPECT_THAT(values("EAN"), Each(IsGs1Number(13)));
  EXPECT_THAT(distinct(values("EAN")), SizeIs(200));
  EXPECT_THAT(values("ItemDescription"), SizeIs(200));
  EXPECT_THAT(distinct(values("ItemDescription")), SizeIs(200));
}

TEST_F(Catalogue, ShowsEveryUnitRateAndKindOfLifespan) {
  EXPECT_THAT(
      distinct(values("UnitOfMeasure")),
      testing::UnorderedElementsAre("PCE", "KGM", "MTR", "KMT", "PA", "SET", "PR", "TNE", "LTR"));
  EXPECT_THAT(distinct(values("TaxRate")), ElementsAre("10", "18"));
  EXPECT_THAT(distinct(values("ProductLifespan/PeriodFormat")), ElementsAre("802", "803", "804"));
}

TEST_F(Catalogue, GivesPricesAndWeightsAsNumbersWithAPoint) {
  EXPECT_THAT(values("UnitNetPrice"), SizeIs(Ge(199U)));
  EXPECT_THAT(values("UnitNetPrice"), Each(MatchesRegex("[0-9]+\\.[0-9][0-9]")));
  EXPECT_THAT(values("PackDetails/Weight"), SizeIs(Ge(199U)));
  EXPECT_THAT(values("PackDetails/Weight"), Each(MatchesRegex("[0-9]+\\.[0-9][0-9][0-9]")));
}

TEST(DeliveryPlaceData, HoldsTwelvePlacesWithNumberIlnAndAddress) {
  const XmlFile places = XmlFile::read("demo/data/delivery-places.xml");
  const std::string place = "/Document-LocalizationsCatalog/localizations/localization/";
  EXPECT_THAT(distinct(places.texts(place + "number")), SizeIs(12));
  EXPECT_THAT(distinct(places.texts(place + "iln")), SizeIs(12));
  EXPECT_THAT(places.texts(place + "iln"), Each(IsGs1Number(13)));
  EXPECT_THAT(distinct(places.texts(place + "address")), SizeIs(12));
}

TEST(OrderData, HasTwentyFiveNumberedLines) {
  const auto lines = linesOfDemoOrder();
  ASSERT_THAT(lines, SizeIs(25));
  for (std::size_t i = 0; i < lines.size(); ++i) {
    EXPECT_EQ(lines[i].number, std::to_string(i + 1));
  }
}

TEST(OrderData, HasTwoFaultyLinesOneByItsEanAndOneByItsPrice) {
  std::vector<std::string> badEans;
  std::vector<std::string> badPrices;
  for (const OrderLine& line : linesOfDemoOrder()) {
    if (!hasCheckDigit(line.ean)) badEans.push_back(line.number + " " + line.ean);
    if (line.price.find_first_not_of("0123456789.") != std::string::npos) {
      badPrices.push_back(line.number + " " + line.price);
    }
  }
  EXPECT_THAT(badEans, ElementsAre("11 ABC"));
  EXPECT_THAT(badPrices, ElementsAre("17 договорная"));
}

TEST(OrderData, LeavesOutWhatTheCatalogueKnows) {
  const XmlFile order = XmlFile::read("demo/data/order.xml");
  const std::string item = "/Document-Order/Order-Lines/Line/Line-Item";
  EXPECT_GE(order.count(item + "[not(ItemDescription)]"), 5U);
  EXPECT_GE(order.count(item + "[not(UnitOfMeasure)]"), 5U);
  EXPECT_GE(order.count(item + "[not(OrderedUnitNetPrice)]"), 5U);
  EXPECT_GE(order.count(item + "/ItemDescription[.='']"), 2U);
  EXPECT_GE(order.count(item + "/OrderedUnitNetPrice[.='']"), 2U);
  EXPECT_EQ(order.count(item + "/OrderedQuantity"), 25U);
}

TEST(OrderData, NamesGoodsOfTheCatalogueButForTwoLines) {
  const XmlFile catalogue = XmlFile::read("demo/data/catalogue.xml");
  std::vector<std::string> unknown;
  for (const OrderLine& line : linesOfDemoOrder()) {
    const std::string path = "//Line[Line-Item/EAN=" + line.ean + "]";
    if (catalogue.count(path) == 0) unknown.push_back(line.number);
  }
  EXPECT_THAT(unknown, ElementsAre("11", "19"));
}

TEST(OrderData, IsBetweenTheTwoFirmsForOneOfTheBuyersPlaces) {
  const XmlFile order = XmlFile::read("demo/data/order.xml");
  const std::string parties = "/Document-Order/Order-Parties/";
  EXPECT_EQ(order.text(parties + "Buyer/ILN"), buyerIln);
  EXPECT_EQ(order.text(parties + "Seller/ILN"), sellerIln);
  EXPECT_THAT(XmlFile::read("demo/data/delivery-places.xml").texts("//localization/iln"),
              Contains(order.text(parties + "DeliveryPoint/ILN")));
}

TEST(LocalFolder, HoldsTheSellerAndWhatTheServiceSaysOfTheBuyer) {
  for (const std::string folder : {"demo/folder", "samples"}) {
    const XmlFile user = XmlFile::read(folder + "/userinfo.xml");
    EXPECT_EQ(user.text("/*/partner-info/info/iln"), sellerIln);
    EXPECT_EQ(user.text("/*/partner-info/info/name"), "ООО «Товары каждый день»");
    EXPECT_EQ(test::readFile(test::projectFolder() / folder /
                             (std::string(sellerIln) + "_" + buyerIln + "_partner_INFO.xml")),
              test::projectFile("demo/data/partner-info.xml"));
  }
  EXPECT_THAT(sellerIln, testing::Truly(hasCheckDigit));
  EXPECT_THAT(buyerIln, testing::Truly(hasCheckDigit));
}

TEST(Samples, ShowOneOrderWithItsGoodsAndItsPlace) {
  const XmlFile order = XmlFile::read("samples/order.xml");
  const auto eans = order.texts("/Document-Order/Order-Lines/Line/Line-Item/EAN");
  EXPECT_THAT(eans, SizeIs(3));
  EXPECT_THAT(eans, IsSubsetOf(XmlFile::read("samples/catalogue.xml")
                                   .texts("/Document-ProductCatalogue/ProductCatalogue-Lines/Line"
                                          "/Line-Item/EAN")));
  EXPECT_THAT(XmlFile::read("samples/delivery-places.xml")
                  .texts("/dictionary-response/document-content/Document-LocalizationsCatalog"
                         "/localizations/localization/iln"),
              Contains(order.text("/Document-Order/Order-Parties/DeliveryPoint/ILN")));
}

TEST(SampleDespatchAdvice, PacksItsLinesIntoItsPackages) {
  const XmlFile advice = XmlFile::read("samples/despatch-advice.xml");
  const std::string packages =
      "/Document-DespatchAdvice/DespatchAdvice-Consignment/Packing-Sequence/";
  EXPECT_THAT(advice.texts(packages + "PackageId"), ElementsAre("1", "2", "3", "4"));
  EXPECT_THAT(advice.texts(packages + "ParentId"), ElementsAre("1", "2", "2"));
  EXPECT_THAT(advice.texts(packages + "SerialNumber"), Each(IsGs1Number(18)));
  EXPECT_THAT(advice.texts("/Document-DespatchAdvice/DespatchAdvice-Lines/Line/Package-Reference"
                           "/PackageId"),
              ElementsAre("3", "4", "2", "4"));
}

TEST(SampleDespatchAdvice, InWindows1251IsTheSameDocument) {
  const XmlFile one = XmlFile::read("samples/despatch-advice.xml");
  const XmlFile other = XmlFile::read("samples/despatch-advice-windows-1251.xml");
  EXPECT_EQ(other.texts("//*"), one.texts("//*"));
  EXPECT_THAT(test::projectFile("samples/despatch-advice-windows-1251.xml"),
              testing::StartsWith("<?xml version=\"1.0\" encoding=\"windows-1251\"?>"));
}

}  // namespace
}  // namespace awizo::demo
