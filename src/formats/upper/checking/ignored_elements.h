#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include "formats/upper/checking/document_map.h"
#include "formats/upper/checking/traced_document.h"

namespace awizo {

/// Kinds of elements that the documents of a format are known to have.
using KnownKinds = std::function<bool(const std::string& kind)>;

/// The elements that a reader has left alone: one finding for each kind of element, at the first of
/// them. `end` is the number of the place at which the reading stopped, or of all places.
std::vector<Finding> ignoredElements(const DocumentMap& map, const TracedDocument& document,
                                     std::size_t end, const KnownKinds& known);

}  // namespace awizo
