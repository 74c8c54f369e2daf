#pragma once

#include <string>
#include <string_view>

#include "papers/shipment.h"

namespace awizo::papers {

// Words of papers, in Russian. What a document holds comes without control characters.

/// "Коробка"; for an unknown code "Упаковка" with the code.
std::string typeWords(std::string_view code);
/// "шт."; an unknown code as it is.
std::string unitWords(std::string_view code);
/// "21.11.2026" for "2026-11-21"; any other text as it is.
std::string dateWords(std::string_view date);
/// "24 шт."; "?" where there is no number.
std::string quantityWords(const Goods& goods);
/// "ОТГ-0318 от 21.11.2026".
std::string numberAndDate(std::string_view number, std::string_view date);
/// "ООО «Товары», ILN 9520001000010".
std::string partyWords(std::string_view name, std::string_view iln);
/// "Упаковка 3 из 25".
std::string placeWords(const Shipment& shipment, const PackedGoods& package);
/// "24 кг · 0,6 × 0,4 × 0,3 м", as far as the document tells: weight, then length, width, height.
std::string measureWords(const AdvicePackage& package);
/// Where the package goes, if the document names a place of its own, else where all goes.
std::string placeOf(const Shipment& shipment, const AdvicePackage& package);
/// "25.11.2026 08:30".
std::string deliveryWords(const AdviceHeader& header);

/// The pieces that aren't empty with " · " between them.
std::string dotted(std::initializer_list<std::string> pieces);

}  // namespace awizo::papers
