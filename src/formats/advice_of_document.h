#pragma once

#include "formats/despatch_advice.h"
#include "platform/xml.h"

namespace awizo {

/// The despatch advice that a document holds, whoever wrote it: every package, line and reference
/// with its values as written, without the white space around them. Of repeated elements it takes
/// the first that isn't empty; what is missing is empty.
DespatchAdvice adviceOf(XmlDocument& document);

}  // namespace awizo
