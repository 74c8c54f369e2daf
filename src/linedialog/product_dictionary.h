#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "foundation/conversions.h"
#include "linedialog/sort.h"
#include "platform/forms/screen.h"
#include "platform/xml.h"

namespace awizo {

/// The product catalogue as the line dialog keeps it: element i belongs to the i-th catalogue line.
/// The texts never move; the index vectors hold each list's order. There is always one element,
/// also for a catalogue without lines.
struct ProductDictionary {
  std::vector<std::string> ProdEAN, ProdName, ProdSupplierCode, ProdBuyerCode, ProdUnit,
      ProdPackSize, ProdTaxRate, ProdPrice, ProdTaxCategory, ProdPeriod, ProdPeriodFormat,
      ProdWeight;
  std::vector<std::int32_t> IdxEAN, IdxName, IdxSupplierCode, IdxBuyerCode;

  /// Takes the lines of a Document-ProductCatalogue and sorts the four indexes, blind to case. What
  /// fails is shown in a box under `title` and doesn't stop the rest: a catalogue without its list
  /// of lines, and each line beyond the 32,767 that the counter holds.
  void read(const XmlNode& catalogue, const Conversions& conversions, Sorter& sorter,
            Screen& screen, std::string_view title);

  // Rows of the lists. Empty texts get a row too, so that a row is a place in its index.
  std::vector<std::string> rowsByEAN() const;
  std::vector<std::string> rowsByName() const;
  std::vector<std::string> rowsBySupplierCode() const;
  std::vector<std::string> rowsByBuyerCode() const;

 private:
  void makeRoom(std::size_t lines);
  void readLine(const XmlNode& line, std::size_t place, const Conversions& conversions);
  void sort(Sorter& sorter, std::int32_t lines);
};

}  // namespace awizo
