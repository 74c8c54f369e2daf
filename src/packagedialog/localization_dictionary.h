#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "linedialog/sort.h"
#include "platform/xml.h"

namespace awizo {

/// The catalogue of delivery places as the package dialog keeps it: number and ILN of each place in
/// the catalogue's order, and the order in which the lists show them.
struct LocalizationDictionary {
  std::vector<std::string> LocalizationNumbers, LocalizationIlns;
  std::vector<std::int32_t> LocalizationOrder;

  /// Takes the entries, the children of a catalogue's `localizations`, and sorts them by number,
  /// blind to case. A missing value is "-1".
  void read(const std::vector<XmlNode>& entries, Sorter& sorter);

  // Rows of the two lists, row by row of one place: one less than there are entries, since the last
  // in sorted order stays out.
  std::vector<std::string> numberRows() const { return offered(LocalizationNumbers); }
  std::vector<std::string> ilnRows() const { return offered(LocalizationIlns); }

 private:
  std::vector<std::string> offered(const std::vector<std::string>& texts) const;
};

}  // namespace awizo
