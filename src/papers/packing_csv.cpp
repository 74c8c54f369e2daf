#include "papers/packing_csv.h"

#include <utility>

#include "papers/words.h"
#include "platform/text.h"

namespace awizo::papers {
namespace {

using Cells = std::vector<std::string>;

constexpr std::size_t packageColumns = 10;

const Cells& headings() {
  static const Cells all{
      "Упаковка", "В упаковке",    "Тип",       "SSCC",           "Вес, кг",
      "Длина, м", "Ширина, м",     "Высота, м", "Место доставки", "Уровень",
      "Строка",   "Строка заказа", "EAN",       "Код покупателя", "Код поставщика",
      "Название", "Количество",    "Ед.",       "Заказано",       "Отгружено",
      "Замечание"};
  return all;
}

std::string text(std::string_view value) {
  std::string plain = withoutControlCharacters(std::string(trimmed(value)));
  if (plain == "-1") return "";
  const bool isFormula =
      !plain.empty() && std::string_view("=+-@").find(plain[0]) != std::string_view::npos;
  return isFormula ? "'" + plain : plain;
}

/// Digits that are no quantity: a spreadsheet would round them, or drop a 0 before them, were they
/// not the text of a formula.
std::string digits(std::string_view value) {
  const std::string plain = text(value);
  const bool areDigits = !plain.empty() && plain.find_first_not_of("0123456789") == plain.npos;
  return areDigits ? joined({"=\"", plain, "\""}) : plain;
}

std::string number(std::string_view value) {
  return amountOf(value) ? amountText(value) : text(value);
}

std::string quoted(const std::string& cell) {
  if (cell.find_first_of(";\"") == cell.npos) return cell;
  return joined({"\"", replaceAll(cell, "\"", "\"\""), "\""});
}

void addRow(std::string& csv, const Cells& cells) {
  for (std::size_t i = 0; i < cells.size(); ++i)
    csv += joined({i == 0 ? "" : ";", quoted(cells[i])});
  csv += "\r\n";
}

Cells packageCells(const Shipment& shipment, const PackedGoods& packed) {
  const AdvicePackage& package = *packed.package;
  return {std::to_string(packed.number),
          packed.parent == 0 ? "" : std::to_string(packed.parent),
          typeWords(package.type),
          digits(package.serialNumber),
          number(package.weight),
          number(package.length),
          number(package.width),
          number(package.height),
          digits(placeOf(shipment, package)),
          std::to_string(packed.level)};
}

Cells with(Cells cells, const Goods& goods, std::string note = "") {
  const AdviceLine& line = *goods.line;
  for (std::string cell :
       {text(line.number), text(line.orderLine), digits(line.ean), digits(line.buyerCode),
        digits(line.supplierCode), text(line.description),
        goods.amount ? amountText(*goods.amount) : std::string("?"), text(unitWords(line.unit)),
        number(line.ordered), number(line.despatched), std::move(note)}) {
    cells.push_back(std::move(cell));
  }
  return cells;
}

}  // namespace

std::string packingCsv(const Shipment& shipment) {
  std::string csv = "\xEF\xBB\xBF";
  addRow(csv, headings());
  for (const PackedGoods& packed : shipment.packages) {
    Cells cells = packageCells(shipment, packed);
    for (const Goods& goods : packed.goods) addRow(csv, with(cells, goods));
    if (!packed.goods.empty()) continue;
    cells.resize(headings().size());
    addRow(csv, cells);
  }
  const Cells noPackage(packageColumns);
  for (const Goods& goods : shipment.unpacked) addRow(csv, with(noPackage, goods));
  for (const Goods& goods : shipment.overpacked) {
    addRow(csv, with(noPackage, goods, "упаковано больше, чем отгружено"));
  }
  return csv;
}

}  // namespace awizo::papers
