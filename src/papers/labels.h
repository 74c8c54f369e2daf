#pragma once

#include <string>
#include <utility>
#include <vector>

#include "papers/gs1.h"
#include "papers/shipment.h"
#include "platform/page.h"

namespace awizo::papers {

/// What a label shows of a product: "Молоко, 1 л", "EAN 9520001010019 · 24 шт.".
struct LabelProduct {
  std::string name;
  std::string facts;
};

/// What stands on one label.
struct Label {
  std::size_t number = 0;  ///< of the package, from 1
  bool isPallet = false;
  std::string serialNumber;
  std::vector<std::pair<std::string, std::string>> facts;  ///< caption and text
  std::vector<LabelProduct> products;                      ///< as many of them as may have room
  std::size_t productCount = 0;                            ///< of all
  Gs1Elements content;  ///< for a second symbol; empty where none would be true
  Gs1Elements package;  ///< for the symbol with the package's number
};

struct LabelSet {
  std::vector<Label> labels;              ///< in the order of the packing list
  std::vector<std::string> withoutLabel;  ///< packages that can't have one, with the reason
};

/// The labels of the packages with these numbers; all packages where none is named.
LabelSet labelsOf(const Shipment& shipment, const Names& names,
                  const std::vector<std::size_t>& numbers);

}  // namespace awizo::papers
