#pragma once

#include "platform/painting.h"

namespace awizo::papers {

/// GS1-128 symbols of digits alone, all that labels bear. Code set C, and one digit of code set B
/// where their number is odd.
class DigitSymbols final : public SymbolEncoder {
 public:
  std::vector<bool> gs1Symbol(std::string_view elements) const override;
};

}  // namespace awizo::papers
