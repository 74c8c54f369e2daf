#pragma once

#include <memory>
#include <vector>

#include "formats/upper/checking/finding.h"
#include "formats/upper/checking/traced_document.h"
#include "platform/forms/platform.h"

namespace awizo {

/// Findings in an order, in no order. Without a catalogue: what it would add isn't missed.
std::vector<Finding> checkOrder(const Platform& platform, std::unique_ptr<TracedDocument> order);

}  // namespace awizo
