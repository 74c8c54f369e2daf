#pragma once

#include <gtest/gtest.h>

#include "platform/painting.h"
#include "platform/text.h"

namespace awizo::test {

/// Every character is 0.6 of the font's size wide, in bold 0.7.
class PlayedMeasure final : public papers::TextMeasure {
 public:
  double width(const std::string& text, const papers::Font& font) const override {
    return static_cast<double>(countCharacters(text)) * font.size * (font.bold ? 0.7 : 0.6);
  }
};

/// As many modules as such a symbol of digits has; every second one is dark.
class PlayedEncoder final : public papers::SymbolEncoder {
 public:
  std::vector<bool> gs1Symbol(std::string_view elements) const override {
    std::size_t digits = 0;
    for (const char letter : elements) digits += letter >= '0' && letter <= '9' ? 1 : 0;
    std::vector<bool> modules(46 + (digits + 1) / 2 * 11);
    for (std::size_t i = 0; i < modules.size(); i += 2) modules[i] = true;
    return modules;
  }
};

struct Box {
  double left, top, right, bottom;
};

inline Box boxOf(const papers::TextRun& run) {
  const double width = PlayedMeasure().width(run.text, run.font);
  return {run.x, run.baseline - run.font.size * 0.73, run.x + width, run.baseline};
}

/// Whether both have some of their inside in common.
inline bool overlap(const Box& one, const Box& other) {
  constexpr double slack = 0.001;
  return one.left < other.right - slack && other.left < one.right - slack &&
         one.top < other.bottom - slack && other.top < one.bottom - slack;
}

/// No text leaves the page, or lies on another text or on a bar or rule.
inline void expectNothingOverlaps(const papers::Page& page) {
  for (const papers::TextRun& run : page.texts) {
    const Box box = boxOf(run);
    EXPECT_TRUE(box.left >= 0 && box.top >= 0 && box.right <= page.size.width &&
                box.bottom <= page.size.height)
        << run.text;
    for (const papers::TextRun& other : page.texts) {
      if (&other == &run) continue;
      EXPECT_FALSE(overlap(box, boxOf(other))) << run.text << " / " << other.text;
    }
    for (const papers::Rectangle& dark : page.rectangles) {
      if (dark.darkness < 0.3) continue;
      const Box bar{dark.x, dark.y, dark.x + dark.width, dark.y + dark.height};
      EXPECT_FALSE(overlap(box, bar)) << run.text;
    }
  }
}

inline std::vector<std::string> textsOf(const papers::Page& page) {
  std::vector<std::string> texts;
  for (const papers::TextRun& run : page.texts)
    texts.push_back(replaceAll(run.text, "\u00a0", " "));
  return texts;
}

}  // namespace awizo::test
