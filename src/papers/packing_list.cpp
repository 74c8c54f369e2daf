#include "papers/packing_list.h"

#include <algorithm>

#include "papers/sheet_flow.h"
#include "papers/words.h"
#include "platform/text.h"

namespace awizo::papers {
namespace {

constexpr Font titleFont{6, true};
constexpr Font plainFont{3.2, false};

std::vector<Column> goodsColumns() {
  return {{"№", 10, true},
          {"EAN", 28},
          {"Код покупателя", 22},
          {"Код поставщика", 22},
          {"Название", 58},
          {"Кол-во", 20, true},
          {"Ед.", 12},
          {"Строка заказа", 14, true}};
}

std::vector<Column> missingColumns() {
  return {{"№", 10, true},
          {"EAN", 28},
          {"Название", 78},
          {"Заказано", 20, true},
          {"Отгружено", 20, true},
          {"Недостаёт", 20, true},
          {"Ед.", 10}};
}

/// A document's text for a cell; the marker of a missing value is none.
std::string cell(std::string_view text) {
  return text == "-1" ? "" : withoutControlCharacters(std::string(trimmed(text)));
}

std::vector<std::string> cellsOf(const Goods& goods) {
  const AdviceLine& line = *goods.line;
  return {cell(line.number),      cell(line.ean),
          cell(line.buyerCode),   cell(line.supplierCode),
          cell(line.description), goods.amount ? amountText(*goods.amount) : "?",
          unitWords(line.unit),   cell(line.orderLine)};
}

std::string serialWords(const PackedGoods& packed) {
  const std::string number = cell(packed.package->serialNumber);
  return number.empty() ? "без номера" : "SSCC " + number;
}

class ListWriter {
 public:
  ListWriter(const Shipment& shipment, const Names& names, const TextMeasure& measure)
      : shipment_(shipment), names_(names), measure_(measure) {}

  Pages wholeList() const {
    SheetFlow flow(measure_, paperTitle());
    addHead(flow);
    addTree(flow);
    addSums(flow);
    addMissing(flow);
    flow.signatures({"Упаковал", "Принял"});
    flow.signatures({"Замечания"});
    return flow.finish();
  }

  Pages sheetOf(const PackedGoods& packed) const {
    SheetFlow flow(measure_, paperTitle() + " · " + placeWords(shipment_, packed));
    addHead(flow);
    flow.heading(groupWords(packed));
    const std::string more = groupDetails(packed);
    flow.paragraph(more, plainFont);
    if (!packed.inside.empty()) {
      flow.paragraph("В ней упаковки: " + numbersOf(packed.inside), plainFont);
    }
    flow.space(2);
    if (packed.goods.empty()) {
      flow.paragraph(
          packed.inside.empty() ? "Содержимое не указано." : "Товары — во внутренних упаковках.",
          plainFont);
    } else {
      flow.beginTable(goodsColumns());
      for (const Goods& goods : packed.goods) flow.row(cellsOf(goods));
      flow.endTable();
    }
    flow.signatures({"Упаковал", "Принял"});
    return flow.finish();
  }

 private:
  std::string paperTitle() const {
    const AdviceHeader& header = shipment_.advice->header;
    return "Упаковочный лист к отгрузке " + numberAndDate(header.number, header.date);
  }

  void addHead(SheetFlow& flow) const {
    const AdviceHeader& header = shipment_.advice->header;
    flow.paragraph("Упаковочный лист", titleFont);
    flow.space(1);
    std::vector<std::pair<std::string, std::string>> facts;
    const auto add = [&](const char* caption, const std::string& text) {
      if (!text.empty()) facts.emplace_back(caption, text);
    };
    add("Отгрузка", numberAndDate(header.number, header.date));
    add("Заказ", numberAndDate(header.orderNumber, header.orderDate));
    add("Поставщик", partyWords(names_.seller, header.sellerILN));
    add("Покупатель", partyWords(names_.buyer, header.buyerILN));
    add("Место доставки", place(cell(header.deliveryILN)));
    add("Доставка", deliveryWords(header));
    flow.facts(facts);
    flow.space(3);
  }

  std::string place(const std::string& iln) const {
    const auto named = names_.places.find(iln);
    return partyWords(named == names_.places.end() ? "" : named->second, iln);
  }

  std::string groupWords(const PackedGoods& packed) const {
    return dotted(
        {placeWords(shipment_, packed), typeWords(packed.package->type), serialWords(packed)});
  }

  std::string groupDetails(const PackedGoods& packed) const {
    const std::string goesTo = placeOf(shipment_, *packed.package);
    const bool goesElsewhere = goesTo != cell(shipment_.advice->header.deliveryILN);
    return dotted({packed.parent == 0 ? "" : "в упаковке " + std::to_string(packed.parent),
                   measureWords(*packed.package),
                   goesElsewhere ? "место доставки " + place(goesTo) : ""});
  }

  std::string numbersOf(const std::vector<std::size_t>& numbers) const {
    std::string text;
    for (const std::size_t number : numbers) {
      text += (text.empty() ? "" : ", ") + std::to_string(number);
    }
    return text;
  }

  void addTree(SheetFlow& flow) const {
    // Beyond this depth the words alone say where a package is.
    constexpr int deepest = 8;
    constexpr double step = 4;
    flow.beginTable(goodsColumns());
    for (const PackedGoods& packed : shipment_.packages) {
      const double indent = step * (std::min(packed.level, deepest) - 1);
      flow.group(groupWords(packed), groupDetails(packed), indent);
      for (const Goods& goods : packed.goods) flow.row(cellsOf(goods));
    }
    if (!shipment_.unpacked.empty()) {
      flow.group("Без упаковки", "", 0);
      for (const Goods& goods : shipment_.unpacked) flow.row(cellsOf(goods));
    }
    if (!shipment_.overpacked.empty()) {
      flow.group("Упаковано больше, чем отгружено", "на столько больше:", 0);
      for (const Goods& goods : shipment_.overpacked) flow.row(cellsOf(goods));
    }
    flow.endTable();
  }

  void addSums(SheetFlow& flow) const {
    flow.heading("Итого");
    std::vector<std::pair<std::string, std::string>> facts;
    std::string types;
    for (const auto& [type, count] : shipment_.packageTypes) {
      types += (types.empty() ? " (" : ", ") + type + ": " + std::to_string(count);
    }
    facts.emplace_back(
        "Упаковок", std::to_string(shipment_.packages.size()) + (types.empty() ? "" : types + ")"));
    if (!shipment_.packages.empty()) {
      facts.emplace_back("Вес внешних упаковок", shipment_.weight
                                                     ? amountText(*shipment_.weight) + " кг"
                                                     : "указан не для всех");
    }
    facts.emplace_back("Строк", std::to_string(shipment_.advice->lines.size()));
    std::string quantities;
    for (const auto& [unit, sum] : shipment_.quantities) {
      quantities += (quantities.empty() ? "" : "; ") + amountText(sum) + " " + unit;
    }
    if (shipment_.unreadable > 0) {
      quantities += (quantities.empty() ? "" : "; ") + std::string("без числа строк: ") +
                    std::to_string(shipment_.unreadable);
    }
    if (!quantities.empty()) facts.emplace_back("Отгружено", quantities);
    flow.facts(facts);
  }

  void addMissing(SheetFlow& flow) const {
    if (shipment_.missing.empty()) return;
    flow.heading("Отгружено меньше, чем заказано");
    flow.beginTable(missingColumns());
    for (const ShortDelivery& shortage : shipment_.missing) {
      const Amount missing{shortage.ordered.millionths - shortage.despatched.millionths};
      flow.row({cell(shortage.line->number), cell(shortage.line->ean),
                cell(shortage.line->description), amountText(shortage.ordered),
                amountText(shortage.despatched), amountText(missing),
                unitWords(shortage.line->unit)});
    }
    flow.endTable();
  }

  const Shipment& shipment_;
  const Names& names_;
  const TextMeasure& measure_;
};

}  // namespace

Pages packingListPages(const Shipment& shipment, const Names& names, const TextMeasure& measure) {
  return ListWriter(shipment, names, measure).wholeList();
}

Pages packageSheetPages(const Shipment& shipment, const Names& names,
                        const std::vector<std::size_t>& numbers, const TextMeasure& measure) {
  const ListWriter writer(shipment, names, measure);
  Pages pages;
  for (const PackedGoods& packed : shipment.packages) {
    if (!numbers.empty() && std::ranges::find(numbers, packed.number) == numbers.end()) continue;
    for (Page& page : writer.sheetOf(packed)) pages.push_back(std::move(page));
  }
  return pages;
}

}  // namespace awizo::papers
