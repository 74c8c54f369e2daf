#pragma once

#include <string>
#include <vector>

#include "tables/package_reference.h"

namespace awizo {

// A despatch advice as a document has it: numbers with a point, dates "yyyy-mm-dd", times "hh:mm".
// The empty text is a missing value.

struct AdviceHeader {
  std::string number;
  std::string date;
  std::string time;
  std::string deliveryDate;  ///< when the goods should arrive, like the next
  std::string deliveryTime;
  std::string orderNumber;
  std::string orderDate;
  std::string currency;
  std::string buyerILN;
  std::string sellerILN;
  std::string codeByBuyer;  ///< of the seller
  std::string deliveryILN;
  bool operator==(const AdviceHeader&) const = default;
};

/// One package. Values of packages and lines are XML text: markup in them is markup.
struct AdvicePackage {
  std::string id;
  std::string parentId;
  std::string type;
  std::string serialNumber;
  std::string deliveryPlace;
  std::string weight;  ///< kilograms
  std::string height;  ///< metres, like the next two
  std::string length;
  std::string width;
  bool operator==(const AdvicePackage&) const = default;
};

struct AdviceLine {
  std::string number;
  std::string orderLine;
  std::string ean;
  std::string buyerCode;
  std::string supplierCode;
  std::string despatched;
  std::string ordered;
  std::string unit;
  std::string description;  ///< protected: markup in it is text
  std::string price;
  std::string netAmount;
  std::string taxRate;
  std::string country;
  std::string customsNumber;
  std::vector<PackageReference> packages;  ///< that hold the line
  bool operator==(const AdviceLine&) const = default;
};

/// Only a document with lines has them.
struct AdviceTotals {
  std::string amount;
  std::string quantity;
  bool operator==(const AdviceTotals&) const = default;
};

struct DespatchAdvice {
  AdviceHeader header;
  /// In the document's order; the tree is in their parents' numbers. The package that stands for
  /// the whole consignment is in every document and not among them.
  std::vector<AdvicePackage> packages;
  std::vector<AdviceLine> lines;
  AdviceTotals totals;
  bool operator==(const DespatchAdvice&) const = default;
};

/// Number of the package that stands for the whole consignment.
inline constexpr const char* consignmentId = "1";

}  // namespace awizo
