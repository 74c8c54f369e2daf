#pragma once

#include <string>

#include "formats/checking/document_map.h"
#include "formats/checking/traced_document.h"

namespace awizo {

/// Tells of the run-time error of this description that ended the reading, at the place where it
/// did.
Finding stoppedReading(const DocumentMap& map, TracedDocument& document,
                       const std::string& description);

}  // namespace awizo
