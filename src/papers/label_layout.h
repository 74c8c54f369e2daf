#pragma once

#include <optional>
#include <vector>

#include "papers/labels.h"
#include "platform/painting.h"

namespace awizo::papers {

struct LabelOptions {
  /// None: A5 for pallets, A6 for all others.
  std::optional<PageSize> size = std::nullopt;
  /// None: two for pallets, which bear them on two sides; else one.
  std::optional<int> copies = std::nullopt;
  int dotsPerInch = 300;
};

/// The labels, a page each; copies follow each other.
Pages labelPages(const std::vector<Label>& labels, const LabelOptions& options,
                 const TextMeasure& measure, const SymbolEncoder& encoder);

}  // namespace awizo::papers
