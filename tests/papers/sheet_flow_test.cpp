#include "papers/sheet_flow.h"

#include "papers/played_painting.h"

namespace awizo::papers {
namespace {

TEST(SheetFlow, ATextOfATableStaysWithinItsColumn) {
  constexpr double width = 40;
  const test::PlayedMeasure measure;
  SheetFlow flow(measure, "");
  flow.beginTable({{"Имя", width}, {"Рядом", width}});
  std::string words;
  for (int row = 0; row < 40; ++row) {
    words += row % 3 == 0 ? " имя" : "и";
    flow.row({words, "x"});
  }
  for (const Page& page : flow.finish()) {
    const double left = page.texts.front().x;
    for (const TextRun& run : page.texts) {
      if (run.x != left) continue;
      EXPECT_LE(test::boxOf(run).right, left + width) << run.text;
    }
  }
}

}  // namespace
}  // namespace awizo::papers
