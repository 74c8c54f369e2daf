#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/painting.h"

namespace awizo::papers {

/// The text in lines of at most this width, broken at spaces; a word that is too long by itself is
/// broken inside. An empty text has no lines.
std::vector<std::string> wrapped(const TextMeasure& measure, std::string_view text,
                                 const Font& font, double width);

/// The first lines of it; where there are more, the last one ends in "…".
std::vector<std::string> shortened(const TextMeasure& measure, std::vector<std::string> lines,
                                   std::size_t most, const Font& font, double width);

/// From baseline to baseline.
inline double lineHeight(const Font& font) { return font.size * 1.25; }
/// From the top of a line to its baseline.
inline double ascent(const Font& font) { return font.size * 0.95; }
/// The font whose digits have this height.
inline Font fontOfDigits(double height, bool bold) { return {height / 0.729, bold}; }

}  // namespace awizo::papers
