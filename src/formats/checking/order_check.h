#pragma once

#include <memory>
#include <vector>

#include "formats/checking/finding.h"
#include "formats/checking/traced_document.h"
#include "platform/forms/platform.h"

namespace awizo {

/// Findings in an order, in no order. Without a catalogue: what it would add isn't missed.
std::vector<Finding> checkOrder(const Platform& platform, std::unique_ptr<TracedDocument> order);

}  // namespace awizo
