#pragma once

#include <cstddef>
#include <vector>

#include "papers/shipment.h"
#include "platform/painting.h"

namespace awizo::papers {

/// The packing list on A4: packages with what is in them, what lies in no package, sums, short
/// deliveries.
Pages packingListPages(const Shipment& shipment, const Names& names, const TextMeasure& measure);

/// A sheet to be laid into each package with one of these numbers, or into all where none is named:
/// what the package holds itself, and the packages directly in it, which have sheets of their own.
Pages packageSheetPages(const Shipment& shipment, const Names& names,
                        const std::vector<std::size_t>& numbers, const TextMeasure& measure);

}  // namespace awizo::papers
