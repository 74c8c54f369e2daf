#include "papers/words.h"

#include <algorithm>
#include <array>

#include "packagedialog/package_types.h"
#include "platform/text.h"

namespace awizo::papers {
namespace {

/// Between what shall stay on one line.
constexpr std::string_view fixedSpace = "\u00a0";

struct UnitWords {
  std::string_view code;
  std::string_view words;
};

constexpr std::array<UnitWords, 9> units{{{"PCE", "шт."},
                                          {"KGM", "кг"},
                                          {"MTR", "м"},
                                          {"KMT", "км"},
                                          {"PA", "уп."},
                                          {"SET", "компл."},
                                          {"PR", "пар"},
                                          {"TNE", "т"},
                                          {"LTR", "л"}}};

std::string plain(std::string_view text) {
  return withoutControlCharacters(std::string(trimmed(text)));
}

/// What documents write for a value that is missing.
bool isMissing(std::string_view text) { return text.empty() || text == "-1"; }

}  // namespace

std::string typeWords(std::string_view code) {
  const std::vector<std::string> rows = packageTypeRows();
  for (std::size_t row = 0; row < rows.size(); ++row) {
    if (symbolPackageType(static_cast<std::int16_t>(row)) == code) return rows[row];
  }
  return isMissing(code) ? "Упаковка" : "Упаковка " + plain(code);
}

std::string unitWords(std::string_view code) {
  const auto found = std::ranges::find(units, code, &UnitWords::code);
  if (found != units.end()) return std::string(found->words);
  return isMissing(code) ? "" : plain(code);
}

std::string dateWords(std::string_view date) {
  if (date.size() != 10 || date[4] != '-' || date[7] != '-') return plain(date);
  return joined({date.substr(8), ".", date.substr(5, 2), ".", date.substr(0, 4)});
}

std::string quantityWords(const Goods& goods) {
  const std::string unit = unitWords(goods.line->unit);
  return (goods.amount ? amountText(*goods.amount) : "?") +
         (unit.empty() ? "" : joined({fixedSpace, unit}));
}

std::string numberAndDate(std::string_view number, std::string_view date) {
  const std::string words = plain(number);
  if (isMissing(date)) return words;
  return words + (words.empty() ? "от " : " от ") + dateWords(date);
}

std::string partyWords(std::string_view name, std::string_view iln) {
  const std::string number = isMissing(iln) ? "" : joined({"ILN", fixedSpace, plain(iln)});
  const std::string words = plain(name);
  return words + (words.empty() || number.empty() ? "" : ", ") + number;
}

std::string placeWords(const Shipment& shipment, const PackedGoods& package) {
  return "Упаковка " + std::to_string(package.number) + " из " +
         std::to_string(shipment.packages.size());
}

std::string measureWords(const AdvicePackage& package) {
  const auto number = [](std::string_view text) {
    return isMissing(text) ? std::string() : amountText(plain(text));
  };
  const std::string weight = number(package.weight);
  std::string sides;
  for (const std::string* side : {&package.length, &package.width, &package.height}) {
    const std::string text = number(*side);
    sides += (side == &package.length ? "" : " × ") + (text.empty() ? "?" : text);
  }
  const bool hasSides = sides.find_first_of("0123456789") != sides.npos;
  return dotted(
      {weight.empty() ? "" : joined({weight, fixedSpace, "кг"}), hasSides ? sides + " м" : ""});
}

std::string placeOf(const Shipment& shipment, const AdvicePackage& package) {
  const std::string place = plain(package.deliveryPlace);
  return isMissing(place) ? plain(shipment.advice->header.deliveryILN) : place;
}

std::string deliveryWords(const AdviceHeader& header) {
  const std::string date = isMissing(header.deliveryDate) ? "" : dateWords(header.deliveryDate);
  const std::string time = isMissing(header.deliveryTime) ? "" : plain(header.deliveryTime);
  return date + (date.empty() || time.empty() ? "" : " ") + time;
}

std::string dotted(std::initializer_list<std::string> pieces) {
  std::vector<std::string> filled;
  for (const std::string& piece : pieces) {
    if (!piece.empty()) filled.push_back(piece);
  }
  return join(filled, " · ");
}

}  // namespace awizo::papers
