#pragma once

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "formats/despatch_advice.h"
#include "papers/amount.h"

namespace awizo::papers {

/// What a despatch advice doesn't say itself. An empty name is printed as the number alone.
struct Names {
  std::string seller;
  std::string buyer;
  std::map<std::string, std::string> places;  ///< name or address of a delivery place by its ILN
};

/// So much of a line.
struct Goods {
  const AdviceLine* line = nullptr;
  std::size_t product = 0;       ///< lines of one number, name and unit are one product
  std::optional<Amount> amount;  ///< none where the document tells no number
};

/// A package with what it holds itself.
struct PackedGoods {
  const AdvicePackage* package = nullptr;
  std::size_t number = 0;  ///< its place in the document, from 1
  std::size_t parent = 0;  ///< number of the package that it is in, 0 for none
  int level = 1;
  std::vector<Goods> goods;
  std::vector<std::size_t> inside;  ///< numbers of the packages directly in it
  std::size_t end = 0;              ///< where, in the list of packages, what is in it ends
};

struct ShortDelivery {
  const AdviceLine* line = nullptr;
  Amount ordered;
  Amount despatched;
};

/// An amount of each unit or type, in the order in which they come first.
using Sums = std::vector<std::pair<std::string, Amount>>;

/// What papers tell of a despatch advice, which must outlive it.
struct Shipment {
  const DespatchAdvice* advice = nullptr;
  /// The tree, each package before those in it.
  std::vector<PackedGoods> packages;
  std::vector<Goods> unpacked;    ///< what of the lines lies in no package
  std::vector<Goods> overpacked;  ///< how much more of a line is packed than despatched
  std::vector<ShortDelivery> missing;
  std::vector<std::pair<std::string, std::size_t>> packageTypes;  ///< words and count of each
  std::optional<Amount> weight;  ///< of the packages that lie in no other; none if one has none
  std::vector<std::pair<std::string, Amount>> quantities;  ///< despatched, by words of the unit
  std::size_t unreadable = 0;  ///< lines whose despatched quantity is no number
  std::size_t products = 0;
};

Shipment shipmentOf(const DespatchAdvice& advice);

/// All that the package at this place of the list holds, those in it included, one entry a product.
std::vector<Goods> contentOf(const Shipment& shipment, std::size_t place);

}  // namespace awizo::papers
