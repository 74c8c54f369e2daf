#include "papers/shipment.h"

#include <algorithm>
#include <tuple>
#include <unordered_map>

#include "formats/packing.h"
#include "papers/words.h"

namespace awizo::papers {
namespace {

class ShipmentMaker {
 public:
  explicit ShipmentMaker(const DespatchAdvice& advice) { shipment_.advice = &advice; }

  Shipment make() {
    const DespatchAdvice& advice = *shipment_.advice;
    const Packing packing = packingOf(advice);
    products_.reserve(advice.lines.size());
    for (const AdviceLine& line : advice.lines) products_.push_back(productOf(line));
    shipment_.products = productNumbers_.size();
    packed_.resize(advice.lines.size());
    isPacked_.resize(advice.lines.size());
    for (const PackedPackage& packed : packing.packages) addPackage(packed);
    findEnds();
    findParents();
    for (const AdviceLine& line : advice.lines) addLine(line);
    addSums();
    return std::move(shipment_);
  }

 private:
  std::size_t lineIndex(const AdviceLine& line) const {
    return static_cast<std::size_t>(&line - shipment_.advice->lines.data());
  }

  std::size_t productOf(const AdviceLine& line) {
    return productNumbers_
        .try_emplace({line.ean, line.description, line.unit}, productNumbers_.size())
        .first->second;
  }

  Goods goodsOf(const AdviceLine& line, std::optional<Amount> amount) const {
    return {&line, products_[lineIndex(line)], amount};
  }

  void addPackage(const PackedPackage& packed) {
    PackedGoods& package = shipment_.packages.emplace_back();
    package.package = packed.package;
    package.level = packed.level;
    package.number =
        1 + static_cast<std::size_t>(packed.package - shipment_.advice->packages.data());
    for (const PackedPart& part : packed.lines) {
      const std::optional<Amount> amount = amountOf(part.quantity.value_or(""));
      package.goods.push_back(goodsOf(*part.line, amount));
      const std::size_t line = lineIndex(*part.line);
      isPacked_[line] = true;
      if (amount) packed_[line] = sumOf(packed_[line], amount).value_or(packed_[line]);
    }
  }

  /// A package's content follows it and is deeper.
  void findEnds() {
    std::vector<std::size_t> open;
    for (std::size_t place = 0; place <= shipment_.packages.size(); ++place) {
      const bool isLast = place == shipment_.packages.size();
      while (!open.empty() &&
             (isLast || shipment_.packages[open.back()].level >= shipment_.packages[place].level)) {
        shipment_.packages[open.back()].end = place;
        open.pop_back();
      }
      open.push_back(place);
    }
  }

  void findParents() {
    std::vector<std::size_t> way;
    for (std::size_t place = 0; place < shipment_.packages.size(); ++place) {
      PackedGoods& package = shipment_.packages[place];
      while (!way.empty() && shipment_.packages[way.back()].end <= place) way.pop_back();
      if (!way.empty()) {
        package.parent = shipment_.packages[way.back()].number;
        shipment_.packages[way.back()].inside.push_back(package.number);
      }
      way.push_back(place);
    }
  }

  void addLine(const AdviceLine& line) {
    const std::optional<Amount> despatched = amountOf(line.despatched);
    const Amount packed = packed_[lineIndex(line)];
    if (!despatched) {
      ++shipment_.unreadable;
      if (!isPacked_[lineIndex(line)]) shipment_.unpacked.push_back(goodsOf(line, despatched));
      return;
    }
    if (*despatched > packed) {
      const Amount rest{despatched->millionths - packed.millionths};
      shipment_.unpacked.push_back(goodsOf(line, rest));
    } else if (*despatched < packed) {
      const Amount more{packed.millionths - despatched->millionths};
      shipment_.overpacked.push_back(goodsOf(line, more));
    }
    const std::optional<Amount> ordered = amountOf(line.ordered);
    if (ordered && *ordered > *despatched) {
      shipment_.missing.push_back({&line, *ordered, *despatched});
    }
  }

  void addSums() {
    shipment_.weight = Amount{};
    for (const PackedGoods& package : shipment_.packages) {
      ++entryOf(shipment_.packageTypes, typeWords(package.package->type));
      if (package.level == 1) {
        shipment_.weight = sumOf(shipment_.weight, amountOf(package.package->weight));
      }
    }
    for (const AdviceLine& line : shipment_.advice->lines) {
      const std::optional<Amount> despatched = amountOf(line.despatched);
      if (!despatched) continue;
      Amount& sum = entryOf(shipment_.quantities, unitWords(line.unit));
      sum = sumOf(sum, despatched).value_or(sum);
    }
  }

  template <class Value>
  static Value& entryOf(std::vector<std::pair<std::string, Value>>& entries,
                        const std::string& key) {
    const auto found =
        std::ranges::find(entries, key, [](const auto& entry) { return entry.first; });
    return found != entries.end() ? found->second : entries.emplace_back(key, Value{}).second;
  }

  Shipment shipment_;
  std::map<std::tuple<std::string, std::string, std::string>, std::size_t> productNumbers_;
  std::vector<std::size_t> products_;  ///< of each line, like the next two
  std::vector<Amount> packed_;
  std::vector<bool> isPacked_;
};

}  // namespace

Shipment shipmentOf(const DespatchAdvice& advice) { return ShipmentMaker(advice).make(); }

std::vector<Goods> contentOf(const Shipment& shipment, std::size_t place) {
  std::vector<Goods> content;
  std::unordered_map<std::size_t, std::size_t> places;
  for (std::size_t inner = place; inner < shipment.packages[place].end; ++inner) {
    for (const Goods& goods : shipment.packages[inner].goods) {
      const auto [entry, isNew] = places.try_emplace(goods.product, content.size());
      if (isNew) {
        content.push_back(goods);
      } else {
        content[entry->second].amount = sumOf(content[entry->second].amount, goods.amount);
      }
    }
  }
  return content;
}

}  // namespace awizo::papers
