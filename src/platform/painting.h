#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/page.h"

namespace awizo::papers {

/// Who will paint the pages, asked for the room that texts take.
class TextMeasure {
 public:
  virtual ~TextMeasure() = default;
  /// Millimetres from the start of the text to where the next would start.
  virtual double width(const std::string& text, const Font& font) const = 0;
};

/// Makes bar codes.
class SymbolEncoder {
 public:
  virtual ~SymbolEncoder() = default;
  /// The modules of the GS1-128 symbol from the left, true for dark ones, without quiet zones. The
  /// text has its identifiers in round brackets: "(00)395200010000000011". Error 5 for what can't
  /// be encoded.
  virtual std::vector<bool> gs1Symbol(std::string_view elements) const = 0;
};

}  // namespace awizo::papers
