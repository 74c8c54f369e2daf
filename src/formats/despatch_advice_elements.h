#pragma once

#include <array>
#include <set>
#include <string>
#include <string_view>

#include "formats/despatch_advice.h"

namespace awizo {

// Which element of the document holds which value, in the order of the document. Writing, reading
// back and the check of a file all use these lists.

enum class Presence {
  always,
  unlessEmpty,
  required,  ///< always, and an empty value is error 94
};

/// The element below one part of the document.
template <class Part>
struct Element {
  std::string_view path;
  std::string Part::*value;
  Presence presence = Presence::unlessEmpty;
};

/// An element below the document element, and the step of the writing that puts its value in.
struct HeaderElement {
  const char* step;
  std::string_view path;
  std::string AdviceHeader::*value;
  Presence presence = Presence::unlessEmpty;
  std::string_view before = "";  ///< what it holds until then
};

inline constexpr std::array headerElements{
    HeaderElement{"1", "DespatchAdvice-Header/DespatchAdviceNumber", &AdviceHeader::number,
                  Presence::always},
    HeaderElement{"2", "DespatchAdvice-Header/DespatchAdviceDate", &AdviceHeader::date,
                  Presence::always},
    HeaderElement{"3", "DespatchAdvice-Header/DespatchAdviceTime", &AdviceHeader::time},
    // Unlike the other dates, a delivery date that is missing is an error.
    HeaderElement{"4", "DespatchAdvice-Header/EstimatedDeliveryDate", &AdviceHeader::deliveryDate,
                  Presence::required},
    HeaderElement{"5", "DespatchAdvice-Header/EstimatedDeliveryTime", &AdviceHeader::deliveryTime},
    HeaderElement{"6", "DespatchAdvice-Header/BuyerOrderNumber", &AdviceHeader::orderNumber,
                  Presence::always},
    HeaderElement{"7", "DespatchAdvice-Header/BuyerOrderDate", &AdviceHeader::orderDate},
    HeaderElement{"7", "DespatchAdvice-Header/Currency", &AdviceHeader::currency, Presence::always,
                  "RUR"},
    HeaderElement{"8", "DespatchAdvice-Parties/Buyer/ILN", &AdviceHeader::buyerILN,
                  Presence::always},
    HeaderElement{"8", "DespatchAdvice-Parties/Seller/ILN", &AdviceHeader::sellerILN,
                  Presence::always},
    HeaderElement{"8", "DespatchAdvice-Parties/Seller/CodeByBuyer", &AdviceHeader::codeByBuyer},
    HeaderElement{"8", "DespatchAdvice-Parties/DeliveryPoint/ILN", &AdviceHeader::deliveryILN},
};

/// Below `Packing-Sequence`.
inline constexpr std::array packageElements{
    Element<AdvicePackage>{"PackageId", &AdvicePackage::id, Presence::always},
    Element<AdvicePackage>{"ParentId", &AdvicePackage::parentId},
    Element<AdvicePackage>{"PackageType", &AdvicePackage::type},
    Element<AdvicePackage>{"SerialNumber", &AdvicePackage::serialNumber},
    Element<AdvicePackage>{"DeliveryPlace", &AdvicePackage::deliveryPlace},
    Element<AdvicePackage>{"PackageWeight", &AdvicePackage::weight},
    Element<AdvicePackage>{"PackageHeight", &AdvicePackage::height},
    Element<AdvicePackage>{"PackageLength", &AdvicePackage::length},
    Element<AdvicePackage>{"PackageWidth", &AdvicePackage::width},
};

/// Below `Line-Item` of a `Line`.
inline constexpr std::array lineElements{
    Element<AdviceLine>{"LineNumber", &AdviceLine::number, Presence::always},
    Element<AdviceLine>{"OrderLineNumber", &AdviceLine::orderLine},
    Element<AdviceLine>{"EAN", &AdviceLine::ean, Presence::always},
    Element<AdviceLine>{"BuyerItemCode", &AdviceLine::buyerCode},
    Element<AdviceLine>{"SupplierItemCode", &AdviceLine::supplierCode},
    Element<AdviceLine>{"DespatchedQuantity", &AdviceLine::despatched, Presence::always},
    Element<AdviceLine>{"OrderedQuantity", &AdviceLine::ordered},
    Element<AdviceLine>{"UnitOfMeasure", &AdviceLine::unit},
    Element<AdviceLine>{"ItemDescription", &AdviceLine::description},
    Element<AdviceLine>{"UnitNetPrice", &AdviceLine::price},
    Element<AdviceLine>{"NetAmount", &AdviceLine::netAmount},
    Element<AdviceLine>{"TaxRate", &AdviceLine::taxRate},
    Element<AdviceLine>{"CountryOfOriginCode", &AdviceLine::country},
    Element<AdviceLine>{"CustomsDeclarationNumber", &AdviceLine::customsNumber},
};

/// Below the document element of a document with lines.
inline constexpr std::array totalElements{
    Element<AdviceTotals>{"DespatchAdvice-Summary/TotalAmount", &AdviceTotals::amount,
                          Presence::always},
    Element<AdviceTotals>{"DespatchAdvice-Summary/TotalQuantity", &AdviceTotals::quantity,
                          Presence::always},
};

// No value without its element.
static_assert(sizeof(AdviceHeader) == headerElements.size() * sizeof(std::string));
static_assert(sizeof(AdvicePackage) == packageElements.size() * sizeof(std::string));
static_assert(sizeof(AdviceLine) ==
              lineElements.size() * sizeof(std::string) + sizeof(AdviceLine::packages));
static_assert(sizeof(AdviceTotals) == totalElements.size() * sizeof(std::string));

/// Whether a document has the value's element.
constexpr bool stands(Presence presence, const std::string& value) {
  return presence != Presence::unlessEmpty || !value.empty();
}

/// Paths of all elements that a written document can have, "Document-DespatchAdvice/...".
std::set<std::string> writtenKinds();

}  // namespace awizo
