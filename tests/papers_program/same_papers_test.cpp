// The papers of a page and those of a window: symbols and widths made without a library are its.

#include <gtest/gtest.h>

#include <QGuiApplication>
#include <array>
#include <random>

#include "adapters/qt_paper/qt_paper.h"
#include "adapters/zint/zint_encoder.h"
#include "papers/digit_symbols.h"
#include "papers/known_widths.h"
#include "papers/label_layout.h"
#include "papers/packing_list.h"
#include "papers/played_advice.h"

namespace awizo::papers {
namespace {

TEST(DigitSymbols, AreThoseOfAnotherEncoder) {
  const DigitSymbols ours;
  const ZintEncoder theirs;
  for (const char* elements :
       {"(00)395200010000000011", "(02)09520001010019(37)24", "(02)09520001010019(37)7",
        "(02)09520001010019(37)123", "(02)09520001010019(37)12345678", "(410)9520001000010"}) {
    EXPECT_EQ(ours.gs1Symbol(elements), theirs.gs1Symbol(elements)) << elements;
  }
}

TEST(DigitSymbols, OfAnyPackageAreThoseOfAnotherEncoder) {
  std::mt19937_64 random(7);
  const DigitSymbols ours;
  const ZintEncoder theirs;
  for (int i = 0; i < 1000; ++i) {
    std::string number = std::to_string(10'000'000'000'000'000 + random() % 90'000'000'000'000'000);
    int sum = 0;
    for (std::size_t at = 0; at < number.size(); ++at) {
      sum += (number[at] - '0') * (at % 2 == 0 ? 3 : 1);
    }
    number += static_cast<char>('0' + (10 - sum % 10) % 10);
    const std::string elements = "(00)" + number;
    ASSERT_EQ(ours.gs1Symbol(elements), theirs.gs1Symbol(elements)) << elements;
  }
}

/// Qt for measuring texts, without a screen.
class SamePapers : public ::testing::Test {
 private:
  bool offscreen_ = qputenv("QT_QPA_PLATFORM", "offscreen");
  int count_ = 1;
  std::string name_ = "test";
  std::array<char*, 2> arguments_{name_.data(), nullptr};
  QGuiApplication application_{count_, arguments_.data()};
};

TEST_F(SamePapers, HaveTextsAsWideAsTheFontsOwn) {
  const QtTextMeasure theirs;
  const KnownWidths ours;
  for (const char* text :
       {"Упаковочный лист", "AVAT. To, LT «Ёлочка» № 7", "ООО «Товары», ILN 9520001000010",
        "0123456789", "0,6 × 0,4 × 0,3 м · 24 кг", "żółć — šķė ґ", "первый…"}) {
    for (const bool bold : {false, true}) {
      const Font font{4, bold};
      EXPECT_NEAR(ours.width(text, font), theirs.width(text, font), 0.02) << text;
    }
  }
}

constexpr double smallest = 0.002;  ///< millimetres

void expectSame(const Pages& page, const Pages& window) {
  ASSERT_EQ(page.size(), window.size());
  for (std::size_t i = 0; i < page.size(); ++i) {
    ASSERT_EQ(page[i].texts.size(), window[i].texts.size());
    ASSERT_EQ(page[i].rectangles.size(), window[i].rectangles.size());
    for (std::size_t at = 0; at < page[i].texts.size(); ++at) {
      const TextRun& ours = page[i].texts[at];
      const TextRun& theirs = window[i].texts[at];
      EXPECT_EQ(ours.text, theirs.text);
      EXPECT_EQ(ours.font, theirs.font) << ours.text;
      EXPECT_NEAR(ours.x, theirs.x, smallest) << ours.text;
      EXPECT_NEAR(ours.baseline, theirs.baseline, smallest) << ours.text;
    }
    for (std::size_t at = 0; at < page[i].rectangles.size(); ++at) {
      EXPECT_NEAR(page[i].rectangles[at].x, window[i].rectangles[at].x, smallest);
      EXPECT_NEAR(page[i].rectangles[at].width, window[i].rectangles[at].width, smallest);
    }
  }
}

/// Texts short and long, products that are mixed, more lines than one sheet has room for.
DespatchAdvice advice() {
  DespatchAdvice advice;
  advice.header.number = "ТН-6";
  for (int i = 2; i < 30; ++i) {
    test::addPackage(advice, std::to_string(i), i % 5 == 0 ? "2" : "1", i % 3 == 0 ? "201" : "CT");
    AdviceLine& line =
        test::addLine(advice, "24", {{std::to_string(i), "20"}, {std::to_string(i / 2 + 1), "2"}});
    for (int word = 0; word < i; ++word) line.description += " сорт «Ёлочка» AVAT";
  }
  return advice;
}

TEST_F(SamePapers, StandInThePageAndInTheWindow) {
  const DespatchAdvice shown = advice();
  const Shipment shipment = shipmentOf(shown);
  const std::vector<Label> labels = labelsOf(shipment, {}, {}).labels;
  ASSERT_FALSE(labels.empty());
  const QtTextMeasure theirs;
  const KnownWidths ours;
  expectSame(labelPages(labels, {}, ours, DigitSymbols()),
             labelPages(labels, {}, theirs, ZintEncoder()));
  expectSame(packingListPages(shipment, {}, ours), packingListPages(shipment, {}, theirs));
  expectSame(packageSheetPages(shipment, {}, {}, ours),
             packageSheetPages(shipment, {}, {}, theirs));
}

}  // namespace
}  // namespace awizo::papers
