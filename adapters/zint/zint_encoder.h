#pragma once

#include "platform/painting.h"

namespace awizo {

/// Bar codes by libzint, which must find nothing to warn of.
class ZintEncoder final : public papers::SymbolEncoder {
 public:
  std::vector<bool> gs1Symbol(std::string_view elements) const override;
};

}  // namespace awizo
