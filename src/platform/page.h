#pragma once

#include <string>
#include <vector>

namespace awizo::papers {

// What stands on a page, in millimetres from its upper left corner. Rectangles are painted before
// the texts, both in their order.

/// `size` is that of the font's em: digits are some 0.73 of it high.
struct Font {
  double size = 0;
  bool bold = false;
  bool operator==(const Font&) const = default;
};

/// One line of text on its baseline, from its left end.
struct TextRun {
  double x = 0;
  double baseline = 0;
  std::string text;
  Font font;
};

/// A filled rectangle: a bar of a symbol, a rule, a shaded row.
struct Rectangle {
  double x = 0;
  double y = 0;
  double width = 0;
  double height = 0;
  double darkness = 1;  ///< 0 is white, 1 is black
};

struct PageSize {
  double width = 0;
  double height = 0;
  bool operator==(const PageSize&) const = default;
};

inline constexpr PageSize a4{210, 297};
inline constexpr PageSize a5{148, 210};
inline constexpr PageSize a6{105, 148};

struct Page {
  PageSize size;
  std::vector<Rectangle> rectangles;
  std::vector<TextRun> texts;
};

using Pages = std::vector<Page>;

}  // namespace awizo::papers
