#pragma once

#include <string>

#include "platform/painting.h"

namespace awizo::papers {

/// The page as an SVG document of its size, its units millimetres. Each text is told how wide the
/// measure says it is, whichever font shows it.
std::string svgOf(const Page& page, const TextMeasure& measure);

}  // namespace awizo::papers
