#pragma once

#include "formats/upper/checking/document_map.h"
#include "formats/upper/checking/traced_document.h"
#include "platform/run_time_error.h"

namespace awizo {

/// Reports the error that ended the reading, at the place where it did.
Finding stoppedReading(const DocumentMap& map, TracedDocument& document, const RunTimeError& error);

}  // namespace awizo
