#include "papers/labels.h"

#include <gmock/gmock.h>

#include "papers/label_layout.h"
#include "papers/played_advice.h"
#include "papers/played_painting.h"
#include "papers/text_box.h"

namespace awizo::papers {
namespace {

using test::addLine;
using test::addPackage;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

Label firstLabel(const DespatchAdvice& advice) {
  return labelsOf(shipmentOf(advice), {}, {}).labels.at(0);
}

Pages pagesOf(const DespatchAdvice& advice, const LabelOptions& options = {},
              const Names& names = {}) {
  return labelPages(labelsOf(shipmentOf(advice), names, {}).labels, options, test::PlayedMeasure(),
                    test::PlayedEncoder());
}

/// A box in a box, both with the same product.
DespatchAdvice oneProduct() {
  DespatchAdvice advice;
  addPackage(advice, "2");
  addPackage(advice, "3", "2");
  addLine(advice, "24", {{"2", "4"}, {"3", "20"}});
  return advice;
}

TEST(Labels, TellTheContentOfASingleProductInASecondSymbol) {
  const Label label = firstLabel(oneProduct());
  EXPECT_EQ(bracketed(label.content), "(02)09520001010019(37)24");
  EXPECT_EQ(bracketed(label.package), "(00)" + test::serialNumber(2));
}

TEST(Labels, HaveNoSecondSymbolThatWouldNotBeTrue) {
  const auto contentAfter = [](const std::function<void(AdviceLine&)>& change) {
    DespatchAdvice advice = oneProduct();
    change(advice.lines[0]);
    return firstLabel(advice).content;
  };
  EXPECT_THAT(contentAfter([](AdviceLine& line) { line.ean = "9520001010018"; }), IsEmpty());
  EXPECT_THAT(contentAfter([](AdviceLine& line) { line.ean = ""; }), IsEmpty());
  EXPECT_THAT(contentAfter([](AdviceLine& line) { line.unit = "KGM"; }), IsEmpty());
  EXPECT_THAT(contentAfter([](AdviceLine& line) { line.unit = ""; }), IsEmpty());
  EXPECT_THAT(contentAfter([](AdviceLine& line) { line.packages[0].quantity = "4.5"; }), IsEmpty());
  EXPECT_THAT(contentAfter([](AdviceLine& line) { line.packages[0].quantity.reset(); }), IsEmpty());
  EXPECT_THAT(contentAfter([](AdviceLine& line) { line.packages.clear(); }), IsEmpty());
  EXPECT_THAT(contentAfter([](AdviceLine& line) {
                line.packages[0].quantity = "0";
                line.packages[1].quantity = "0";
              }),
              IsEmpty());
  DespatchAdvice mixed = oneProduct();
  addLine(mixed, "1", {{"3", "1"}}).ean = "9520001010811";
  EXPECT_THAT(firstLabel(mixed).content, IsEmpty());
}

TEST(Labels, APackageWithoutARightNumberIsListedInstead) {
  DespatchAdvice advice;
  addPackage(advice, "2").serialNumber = "";
  addPackage(advice, "3").serialNumber = "395200010000000012";
  addPackage(advice, "4");
  const LabelSet set = labelsOf(shipmentOf(advice), {}, {});
  EXPECT_EQ(set.labels.size(), 1U);
  EXPECT_THAT(set.withoutLabel,
              ElementsAre("Упаковка 1 из 3 (Коробка): нет серийного номера",
                          "Упаковка 2 из 3 (Коробка): неверный серийный номер 395200010000000012"));
}

TEST(Labels, AreMadeOfTheNamedPackagesOnly) {
  DespatchAdvice advice;
  for (const char* id : {"2", "3", "4"}) addPackage(advice, id);
  const LabelSet set = labelsOf(shipmentOf(advice), {}, {3, 1});
  ASSERT_EQ(set.labels.size(), 2U);
  EXPECT_EQ(set.labels[0].number, 1U);
  EXPECT_EQ(set.labels[1].number, 3U);
}

TEST(LabelPages, PalletsHaveLargerOnesTwice) {
  DespatchAdvice advice;
  addPackage(advice, "2", "1", "09");
  addPackage(advice, "3", "2");
  std::vector<PageSize> sizes;
  for (const Page& page : pagesOf(advice)) sizes.push_back(page.size);
  EXPECT_THAT(sizes, ElementsAre(a5, a5, a6));
  EXPECT_EQ(pagesOf(advice, {.size = a5, .copies = 3}).size(), 6U);
}

TEST(LabelPages, TheNumbersSymbolIsLowestAndBothAreHighEnough) {
  const Page page = pagesOf(oneProduct())[0];
  double lowest = 0;
  double highest = page.size.height;
  for (const Rectangle& bar : page.rectangles) {
    if (bar.height != barHeight) continue;
    lowest = std::max(lowest, bar.y + bar.height);
    highest = std::min(highest, bar.y);
  }
  EXPECT_GT(lowest - highest, 2 * barHeight) << "two symbols, one above the other";
  const auto line = [&](const std::string& start) {
    for (const TextRun& run : page.texts) {
      if (run.text.starts_with(start)) return run.baseline;
    }
    return 0.0;
  };
  EXPECT_GT(line("(00)"), lowest);
  EXPECT_GT(line("(02)"), highest + barHeight);
  EXPECT_LT(line("(02)"), lowest - barHeight);
}

TEST(LabelPages, BarsAreWholeDotsFromThePagesEdge) {
  for (const int dots : {203, 300, 600}) {
    const double dot = dots == 203 ? 0.125 : 25.4 / dots;
    const Page page = pagesOf(oneProduct(), {.dotsPerInch = dots})[0];
    for (const Rectangle& bar : page.rectangles) {
      if (bar.height != barHeight) continue;
      EXPECT_NEAR(bar.x / dot, std::round(bar.x / dot), 1e-6);
      EXPECT_NEAR(bar.width / dot, std::round(bar.width / dot), 1e-6);
      EXPECT_GE(bar.x, quietModules * leastModule);
    }
  }
}

TEST(LabelPages, ASecondSymbolThatIsWiderThanThePaperIsLeftOut) {
  DespatchAdvice advice;
  addPackage(advice, "2");
  addLine(advice, "12345678", {{"2", "12345678"}});
  EXPECT_THAT(test::textsOf(pagesOf(advice)[0]), Not(Contains(HasSubstr("(02)"))));
  EXPECT_THAT(test::textsOf(pagesOf(advice, {.size = a5})[0]), Contains(HasSubstr("(02)")));
}

TEST(LabelPages, NothingIsCutOffOrOverlapsWhateverTheTexts) {
  for (const int length : {3, 40, 400, 4000}) {
    for (const int products : {0, 1, 2, 7, 60}) {
      DespatchAdvice advice;
      addPackage(advice, "2").deliveryPlace = "952000200102300000";
      std::string name;
      while (static_cast<int>(name.size()) < length)
        name += name.size() % 7 == 0 ? "слово " : "ДЛИННОЕ";
      for (int i = 0; i < products; ++i) {
        AdviceLine& line = addLine(advice, "5", {{"2", "5"}});
        line.description = name + std::to_string(i);
        line.buyerCode = name;
      }
      advice.header.number = name;
      advice.header.orderNumber = name;
      const Names names{.seller = name, .buyer = name, .places = {}};
      for (const PageSize& size : {a5, a6}) {
        test::expectNothingOverlaps(pagesOf(advice, {.size = size}, names)[0]);
      }
    }
  }
}

TEST(LabelPages, SayHowManyProductsHadNoRoom) {
  DespatchAdvice advice;
  addPackage(advice, "2");
  for (int i = 0; i < 60; ++i) {
    addLine(advice, "5", {{"2", "5"}}).description = "Товар " + std::to_string(i);
  }
  const std::vector<std::string> texts = test::textsOf(pagesOf(advice)[0]);
  EXPECT_THAT(texts, Contains("СМЕШАННЫЙ, наименований: 60"));
  const auto shown = std::ranges::count_if(
      texts, [](const std::string& text) { return text.starts_with("Товар "); });
  EXPECT_THAT(texts, Contains("и ещё " + std::to_string(60 - shown) + ", см. упаковочный лист"));
}

TEST(TextBox, BreaksLinesAtSpacesAndLongWordsInside) {
  const test::PlayedMeasure measure;
  EXPECT_THAT(wrapped(measure, "один два три", {1, false}, 5), ElementsAre("один два", "три"));
  EXPECT_THAT(wrapped(measure, "а абвгдежзийк б", {1, false}, 3),
              ElementsAre("а", "абвгд", "ежзий", "к б"));
  EXPECT_THAT(wrapped(measure, "", {1, false}, 3), IsEmpty());
  EXPECT_THAT(wrapped(measure, "шире", {1, false}, 0.1), ElementsAre("ш", "и", "р", "е"));
  EXPECT_THAT(shortened(measure, {"один", "два"}, 1, {1, false}, 2.4), ElementsAre("оди…"));
}

}  // namespace
}  // namespace awizo::papers
