#include "papers/labels.h"

#include <algorithm>

#include "papers/words.h"
#include "platform/text.h"

namespace awizo::papers {
namespace {

constexpr std::string_view palletType = "09";

/// More have no room on the largest label.
constexpr std::size_t mostProducts = 12;

/// Symbols tell of pieces only, in whole numbers. All that the package holds must be one product
/// with a number that everyone knows.
Gs1Elements contentElements(const std::vector<Goods>& content) {
  if (content.size() != 1) return {};
  const Goods& goods = content.front();
  const std::string number = productNumber(trimmed(goods.line->ean));
  if (number.empty() || goods.line->unit != "PCE" || !goods.amount) return {};
  const std::string count = amountText(*goods.amount);
  if (count == "0" || count.size() > 8 || count.find(',') != count.npos) return {};
  return {{"02", number}, {"37", count}};
}

LabelProduct productWords(const Goods& goods) {
  const auto fact = [](std::string_view caption, std::string_view value) {
    const std::string text = withoutControlCharacters(std::string(trimmed(value)));
    return text.empty() || text == "-1" ? "" : joined({caption, "\u00a0", text});
  };
  const AdviceLine& line = *goods.line;
  return {withoutControlCharacters(line.description),
          dotted({fact("EAN", line.ean), fact("код покупателя", line.buyerCode),
                  quantityWords(goods)})};
}

class LabelMaker {
 public:
  LabelMaker(const Shipment& shipment, const Names& names) : shipment_(shipment), names_(names) {}

  Label labelOf(std::size_t place) const {
    const PackedGoods& packed = shipment_.packages[place];
    Label label;
    label.number = packed.number;
    label.isPallet = packed.package->type == palletType;
    label.serialNumber = packed.package->serialNumber;
    label.package = {{"00", label.serialNumber}};
    const std::vector<Goods> content = contentOf(shipment_, place);
    label.content = contentElements(content);
    label.productCount = content.size();
    for (const Goods& goods : content) {
      if (label.products.size() == mostProducts) break;
      label.products.push_back(productWords(goods));
    }
    addFacts(packed, label);
    return label;
  }

 private:
  void addFacts(const PackedGoods& packed, Label& label) const {
    const AdviceHeader& header = shipment_.advice->header;
    const auto add = [&](const char* caption, std::string text) {
      if (!text.empty()) label.facts.emplace_back(caption, std::move(text));
    };
    add("От кого", partyWords(names_.seller, header.sellerILN));
    add("Кому", partyWords(names_.buyer, header.buyerILN));
    const std::string place = placeOf(shipment_, *packed.package);
    const auto named = names_.places.find(place);
    add("Куда", partyWords(named == names_.places.end() ? "" : named->second, place));
    add("Заказ", numberAndDate(header.orderNumber, header.orderDate));
    add("Отгрузка", numberAndDate(header.number, header.date));
    add("Доставка", deliveryWords(header));
    const std::string outer =
        packed.parent == 0 ? "" : "в упаковке " + std::to_string(packed.parent);
    add("Место", dotted({placeWords(shipment_, packed), typeWords(packed.package->type), outer}));
    add("Размеры", measureWords(*packed.package));
  }

  const Shipment& shipment_;
  const Names& names_;
};

/// Why the package can have no label; empty where it can.
std::string refusalOf(const PackedGoods& packed) {
  const std::string& number = packed.package->serialNumber;
  if (number.empty()) return "нет серийного номера";
  return isContainerNumber(number) ? "" : "неверный серийный номер " + number;
}

}  // namespace

LabelSet labelsOf(const Shipment& shipment, const Names& names,
                  const std::vector<std::size_t>& numbers) {
  const LabelMaker maker(shipment, names);
  LabelSet set;
  for (std::size_t place = 0; place < shipment.packages.size(); ++place) {
    const PackedGoods& packed = shipment.packages[place];
    if (!numbers.empty() && std::ranges::find(numbers, packed.number) == numbers.end()) continue;
    const std::string refusal = refusalOf(packed);
    if (refusal.empty()) {
      set.labels.push_back(maker.labelOf(place));
    } else {
      set.withoutLabel.push_back(joined(
          {placeWords(shipment, packed), " (", typeWords(packed.package->type), "): ", refusal}));
    }
  }
  return set;
}

}  // namespace awizo::papers
