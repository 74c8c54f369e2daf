#include "papers/shipment.h"

#include <gmock/gmock.h>

#include "papers/package_numbers.h"
#include "papers/packing_csv.h"
#include "papers/played_advice.h"
#include "papers/words.h"
#include "platform/text.h"

namespace awizo::papers {
namespace {

using test::addLine;
using test::addPackage;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Pair;

std::vector<std::string> words(const std::vector<Goods>& goods) {
  std::vector<std::string> all;
  for (const Goods& entry : goods) {
    all.push_back(entry.line->number + ": " + replaceAll(quantityWords(entry), "\u00a0", " "));
  }
  return all;
}

TEST(Amount, IsReadExactlyAndWrittenShort) {
  EXPECT_EQ(amountText("7.500"), "7,5");
  EXPECT_EQ(amountText("24.000"), "24");
  EXPECT_EQ(amountText("0.000"), "0");
  EXPECT_EQ(amountText("007,05"), "7,05");
  EXPECT_EQ(amountText("999999999.999999"), "999999999,999999");
  EXPECT_EQ(amountText("1.0000001"), "1.0000001") << "too fine to be added up";
  EXPECT_EQ(amountText("1000000000"), "1000000000") << "too much to be added up";
  EXPECT_FALSE(amountOf("1000000000"));
  for (const char* text : {"", "-1", ".5", "1e3", "много", "1 000", "1.2.3"}) {
    EXPECT_FALSE(amountOf(text)) << text;
  }
}

TEST(Shipment, WhatIsInNoPackageIsLeftOver) {
  DespatchAdvice advice;
  addPackage(advice, "2");
  addLine(advice, "10.000", {{"2", "4.000"}, {"77", "3.000"}});
  addLine(advice, "5.000", {});
  addLine(advice, "2.500", {{"2", "2.500"}});
  addLine(advice, "много", {});
  const Shipment shipment = shipmentOf(advice);
  EXPECT_THAT(words(shipment.packages[0].goods), ElementsAre("1: 4 шт.", "3: 2,5 шт."));
  EXPECT_THAT(words(shipment.unpacked), ElementsAre("1: 6 шт.", "2: 5 шт.", "4: ? шт."));
  EXPECT_THAT(shipment.overpacked, IsEmpty());
  EXPECT_EQ(shipment.unreadable, 1U);
}

TEST(Shipment, TellsWhatIsPackedThoughNotDespatched) {
  DespatchAdvice advice;
  addPackage(advice, "2");
  addLine(advice, "7.5", {{"2", "5"}, {"2", "4"}});
  EXPECT_THAT(words(shipmentOf(advice).overpacked), ElementsAre("1: 1,5 шт."));
}

TEST(Shipment, AddsUpByTypeAndByUnit) {
  DespatchAdvice advice;
  addPackage(advice, "2", "1", "09").weight = "62.5";
  addPackage(advice, "3", "2").weight = "24";
  addPackage(advice, "4", "1", "09").weight = "0.25";
  addLine(advice, "1.5", {}).unit = "KGM";
  addLine(advice, "10", {});
  addLine(advice, "2.25", {}).unit = "KGM";
  const Shipment shipment = shipmentOf(advice);
  EXPECT_THAT(shipment.packageTypes, ElementsAre(Pair("Паллета", 2U), Pair("Коробка", 1U)));
  EXPECT_THAT(shipment.quantities,
              ElementsAre(Pair("кг", Amount{3'750'000}), Pair("шт.", Amount{10'000'000})));
  EXPECT_EQ(shipment.weight, Amount{62'750'000}) << "boxes in a pallet weigh with it";
  advice.packages[0].weight = "";
  EXPECT_FALSE(shipmentOf(advice).weight);
}

TEST(Shipment, ListsShortDeliveries) {
  DespatchAdvice advice;
  addLine(advice, "10", {}).ordered = "12";
  addLine(advice, "10", {}).ordered = "10";
  addLine(advice, "10", {}).ordered = "";
  const Shipment shipment = shipmentOf(advice);
  ASSERT_EQ(shipment.missing.size(), 1U);
  EXPECT_EQ(shipment.missing[0].line->number, "1");
}

TEST(Shipment, CountsPackagesAsTheDocumentHasThem) {
  DespatchAdvice advice;
  addPackage(advice, "2");
  addPackage(advice, "3");
  addPackage(advice, "4", "2");
  const Shipment shipment = shipmentOf(advice);
  std::vector<std::string> all;
  for (const PackedGoods& packed : shipment.packages) {
    all.push_back(placeWords(shipment, packed) + " in " + std::to_string(packed.parent));
  }
  EXPECT_THAT(all,
              ElementsAre("Упаковка 1 из 3 in 0", "Упаковка 3 из 3 in 1", "Упаковка 2 из 3 in 0"));
  EXPECT_THAT(shipment.packages[0].inside, ElementsAre(3U));
}

TEST(Shipment, APackageHoldsWhatIsInItsPackagesToo) {
  DespatchAdvice advice;
  addPackage(advice, "2");
  addPackage(advice, "3", "2");
  addPackage(advice, "4", "3");
  addPackage(advice, "5");
  addLine(advice, "9", {{"2", "1"}, {"4", "2"}, {"5", "6"}});
  addLine(advice, "9", {{"3", "4"}});
  addLine(advice, "9", {{"3", "1"}}).ean = "9520001010811";
  const Shipment shipment = shipmentOf(advice);
  EXPECT_THAT(words(contentOf(shipment, 0)), ElementsAre("1: 7 шт.", "3: 1 шт."));
  EXPECT_THAT(words(contentOf(shipment, 2)), ElementsAre("1: 2 шт."));
}

TEST(Shipment, FollowsAChainOfAnyDepth) {
  DespatchAdvice advice;
  for (int id = 2; id < 2185; ++id) addPackage(advice, std::to_string(id), std::to_string(id - 1));
  addLine(advice, "1", {{"2184", "1"}});
  const Shipment shipment = shipmentOf(advice);
  EXPECT_EQ(shipment.packages.back().level, 2183);
  EXPECT_THAT(words(contentOf(shipment, 0)), ElementsAre("1: 1 шт."));
}

TEST(PackageNumbers, AreNamedByRanges) {
  EXPECT_THAT(*packageNumbers("2-4,1, 3", 5), ElementsAre(1U, 2U, 3U, 4U));
  EXPECT_THAT(*packageNumbers("5", 5), ElementsAre(5U));
  for (const char* text :
       {"", "0", "6", "4-2", "2-6", "a", "1-", "-1", "1,,2", "1.5", "1-99999999999999999999"}) {
    EXPECT_FALSE(packageNumbers(text, 5)) << text;
  }
}

/// As a spreadsheet keeps all of its digits.
std::string kept(const std::string& digits) { return "\"=\"\"" + digits + "\"\"\""; }

TEST(PackingCsv, HasARowForEachLineInEachPackage) {
  DespatchAdvice advice;
  addPackage(advice, "2", "1", "09").weight = "62.500";
  addPackage(advice, "3", "2");
  AdviceLine& line = addLine(advice, "8", {{"3", "5.500"}});
  line.description = "=Сыр; \"весовой\"\n";
  line.buyerCode = "-1";
  line.ordered = "12.000";
  const std::string csv = packingCsv(shipmentOf(advice));
  const std::string goods = "1;;" + kept("9520001010019") + ";;;\"'=Сыр; \"\"весовой\"\"\";";
  EXPECT_THAT(csv, HasSubstr("\r\n1;;Паллета;" + kept(test::serialNumber(2)) +
                             ";62,5;;;;;1;;;;;;;;;;;\r\n"));
  EXPECT_THAT(csv, HasSubstr("\r\n2;1;Коробка;" + kept(test::serialNumber(3)) + ";;;;;;2;" + goods +
                             "5,5;шт.;12;8;\r\n"));
  EXPECT_THAT(csv, HasSubstr("\r\n;;;;;;;;;;" + goods + "2,5;шт.;12;8;\r\n"));
}

TEST(PackingCsv, NumbersThatAreNoQuantitiesKeepAllTheirDigits) {
  DespatchAdvice advice;
  addPackage(advice, "2").serialNumber = "052000100000000017";
  AdviceLine& line = addLine(advice, "8", {{"2", "8"}});
  line.buyerCode = "0042";
  line.supplierCode = "=1+1";
  line.ean = "0952\"";
  const std::string csv = packingCsv(shipmentOf(advice));
  EXPECT_THAT(csv, HasSubstr(";\"=\"\"052000100000000017\"\"\";"));
  EXPECT_THAT(csv, HasSubstr(";\"0952\"\"\";\"=\"\"0042\"\"\";'=1+1;"));
}

TEST(PackingCsv, SaysWhatIsPackedBeyondWhatIsDespatched) {
  DespatchAdvice advice;
  addPackage(advice, "2");
  addLine(advice, "8", {{"2", "9.500"}});
  EXPECT_THAT(packingCsv(shipmentOf(advice)),
              HasSubstr(";8;\r\n;;;;;;;;;;1;;" + kept("9520001010019") +
                        ";;;Молоко;1,5;шт.;;8;упаковано больше, чем отгружено\r\n"));
}

TEST(PackingCsv, EveryRowHasAllColumns) {
  DespatchAdvice advice;
  addPackage(advice, "2");
  addPackage(advice, "3");
  addLine(advice, "8", {{"3", "5"}});
  const std::string csv = packingCsv(shipmentOf(advice));
  for (const std::string& row : split(csv.substr(0, csv.size() - 2), "\r\n")) {
    EXPECT_EQ(split(row, ";").size(), 21U) << row;
  }
}

}  // namespace
}  // namespace awizo::papers
