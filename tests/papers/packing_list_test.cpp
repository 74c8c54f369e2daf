#include "papers/packing_list.h"

#include <gmock/gmock.h>

#include "papers/played_advice.h"
#include "papers/played_painting.h"

namespace awizo::papers {
namespace {

using test::addLine;
using test::addPackage;
using test::textsOf;
using ::testing::Contains;
using ::testing::HasSubstr;

Pages listOf(const DespatchAdvice& advice, const Names& names = {}) {
  return packingListPages(shipmentOf(advice), names, test::PlayedMeasure());
}

/// Forty boxes on each pallet, a line in each package.
DespatchAdvice largeAdvice() {
  DespatchAdvice advice;
  advice.header.number = "ОТГ-1";
  for (int i = 0; i < 200; ++i) {
    const std::string id = std::to_string(i + 2);
    const std::string parent = std::to_string(i - i % 40 + 2);
    addPackage(advice, id, i % 40 == 0 ? "1" : parent, i % 40 == 0 ? "09" : "201");
    AdviceLine& line = addLine(advice, "24", {{id, "24"}});
    line.ordered = "30";
    line.description = "Товар, имя которого занимает в столбце не одну строку, номер " + id;
  }
  return advice;
}

TEST(PackingList, EverySheetSaysWhichOneItIsAndRepeatsTheHead) {
  const Pages pages = listOf(largeAdvice());
  ASSERT_GT(pages.size(), 5U);
  for (std::size_t i = 0; i < pages.size(); ++i) {
    EXPECT_EQ(pages[i].size, a4);
    EXPECT_THAT(textsOf(pages[i]),
                Contains("лист " + std::to_string(i + 1) + " из " + std::to_string(pages.size())));
    EXPECT_THAT(textsOf(pages[i]), Contains("Упаковочный лист к отгрузке ОТГ-1"));
    EXPECT_THAT(textsOf(pages[i]), Contains("EAN")) << i;
    test::expectNothingOverlaps(pages[i]);
  }
}

TEST(PackingList, NoRowIsTornAndNoPackageParted) {
  DespatchAdvice advice = largeAdvice();
  for (AdviceLine& line : advice.lines) line.ordered = "";
  for (const Page& page : listOf(advice)) {
    const std::vector<std::string> texts = textsOf(page);
    const auto count = [&](const std::string& start) {
      return std::ranges::count_if(
          texts, [&](const std::string& text) { return text.starts_with(start); });
    };
    // The first and the last line of every name are on one sheet.
    EXPECT_EQ(count("Товар, имя"), std::ranges::count_if(texts, [](const std::string& text) {
                return text.find("номер") != text.npos;
              }));
    // A package's head is never alone at a sheet's end.
    EXPECT_EQ(count("Упаковка "), count("9520001010019"));
  }
}

TEST(PackingList, APackageThatGoesOnIsNamedOnTheNextSheetToo) {
  DespatchAdvice advice;
  addPackage(advice, "2");
  for (int i = 0; i < 80; ++i) addLine(advice, "1", {{"2", "1"}});
  const Pages pages = listOf(advice);
  ASSERT_GT(pages.size(), 1U);
  EXPECT_THAT(textsOf(pages[1]),
              Contains(AllOf(HasSubstr("Упаковка 1 из 1"), HasSubstr("(продолжение)"))));
}

TEST(PackingList, ShowsTheRestSumsAndShortDeliveries) {
  DespatchAdvice advice;
  addPackage(advice, "2", "1", "09").weight = "62.5";
  addPackage(advice, "3", "2");
  addLine(advice, "10", {{"3", "4"}}).ordered = "12";
  const Names names{.seller = "ООО «Товары»", .buyer = "", .places = {}};
  advice.header.sellerILN = "9520001000010";
  const std::vector<std::string> texts = textsOf(listOf(advice, names)[0]);
  EXPECT_THAT(texts, Contains("ООО «Товары», ILN 9520001000010"));
  EXPECT_THAT(texts, Contains("Упаковка 2 из 2 · Коробка · SSCC " + test::serialNumber(3)));
  EXPECT_THAT(texts, Contains("Без упаковки"));
  EXPECT_THAT(texts, Contains("6"));
  EXPECT_THAT(texts, Contains("2 (Паллета: 1, Коробка: 1)"));
  EXPECT_THAT(texts, Contains("62,5 кг"));
  EXPECT_THAT(texts, Contains("10 шт."));
  EXPECT_THAT(texts, Contains("Отгружено меньше, чем заказано"));
}

TEST(PackingList, ManyPackagesInEachOtherLeaveRoomForTheirWords) {
  DespatchAdvice advice;
  for (int id = 2; id < 60; ++id) {
    addPackage(advice, std::to_string(id), std::to_string(id - 1));
    addLine(advice, "1", {{std::to_string(id), "1"}});
  }
  for (const Page& page : listOf(advice)) test::expectNothingOverlaps(page);
}

TEST(PackingList, EvenANameOfSeveralSheetsIsWritten) {
  DespatchAdvice advice;
  addPackage(advice, "2");
  std::string name;
  for (int i = 0; i < 1500; ++i) name += "слово" + std::to_string(i) + " ";
  addLine(advice, "1", {{"2", "1"}}).description = name;
  std::string all;
  for (const Page& page : listOf(advice)) {
    test::expectNothingOverlaps(page);
    for (const std::string& text : textsOf(page)) all += text + " ";
  }
  for (int i = 0; i < 1500; ++i) EXPECT_THAT(all, HasSubstr("слово" + std::to_string(i) + " "));
}

TEST(PackingList, AnEmptyAdviceHasASheet) {
  const Pages pages = listOf({});
  ASSERT_EQ(pages.size(), 1U);
  EXPECT_THAT(textsOf(pages[0]), Contains("лист 1 из 1"));
}

TEST(PackageSheets, EachPackageHasItsOwn) {
  DespatchAdvice advice;
  addPackage(advice, "2", "1", "09");
  addPackage(advice, "3", "2");
  addPackage(advice, "4", "2");
  addLine(advice, "10", {{"3", "4"}, {"4", "6"}});
  const Shipment shipment = shipmentOf(advice);
  const Pages all = packageSheetPages(shipment, {}, {}, test::PlayedMeasure());
  ASSERT_EQ(all.size(), 3U);
  EXPECT_THAT(textsOf(all[0]), Contains("В ней упаковки: 2, 3"));
  EXPECT_THAT(textsOf(all[1]), Contains("4"));
  for (const Page& page : all) {
    EXPECT_THAT(textsOf(page), Contains("лист 1 из 1"));
    test::expectNothingOverlaps(page);
  }
  const Pages one = packageSheetPages(shipment, {}, {3}, test::PlayedMeasure());
  ASSERT_EQ(one.size(), 1U);
  EXPECT_THAT(textsOf(one[0]), Contains(HasSubstr("Упаковка 3 из 3")));
}

}  // namespace
}  // namespace awizo::papers
