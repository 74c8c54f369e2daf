#pragma once

#include <string>

#include "papers/shipment.h"

namespace awizo::papers {

/// The packing list as a table for spreadsheets: UTF-8 with a byte order mark, semicolons, decimal
/// commas, a row for each line in each package. A package that holds no goods itself has a row too;
/// what lies in no package is last. A text that a spreadsheet would take for a formula has an
/// apostrophe in front.
std::string packingCsv(const Shipment& shipment);

}  // namespace awizo::papers
