#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "platform/xml.h"

namespace awizo {

/// Finds lines of a product catalogue by EAN, as this path does:
/// /Document-ProductCatalogue/ProductCatalogue-Lines/Line[Line-Item/EAN=`ean`]
/// The EAN isn't quoted there, so that numbers are compared ("0123" is "123"), and an EAN that is
/// no number is an expression of its own. The catalogue is walked once for all plain numbers.
class CatalogueIndex {
 public:
  /// `eans`: all that will be asked for. The catalogue must not change afterwards.
  CatalogueIndex(XmlDocument& catalogue, const std::vector<std::string>& eans);

  /// The first line in document order, or none. Error -2147467259 where the path is invalid, as for
  /// an empty EAN.
  XmlNode find(std::string_view ean) const;

 private:
  void readLine(const XmlNode& line);

  XmlDocument& catalogue_;
  std::unordered_map<std::int64_t, XmlNode> lines_;
};

}  // namespace awizo
