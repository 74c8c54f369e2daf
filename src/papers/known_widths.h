#pragma once

#include "platform/painting.h"

namespace awizo::papers {

/// Texts as wide as in DejaVu Sans, for a painter that can't be asked: a browser has the fonts that
/// it has. It is told how wide each text is to be, so that papers look the same wherever they are
/// made.
class KnownWidths final : public TextMeasure {
 public:
  double width(const std::string& text, const Font& font) const override;
};

}  // namespace awizo::papers
