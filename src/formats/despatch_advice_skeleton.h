#pragma once

#include <memory>

#include "formats/despatch_advice.h"
#include "platform/xml.h"

namespace awizo {

/// The document of a despatch advice without its values, packages and lines: an optional value that
/// is empty has no element, and without lines it has neither these nor the summary.
std::unique_ptr<XmlDocument> CreateDesAdvSkeleton(const Xml& xml, const DespatchAdvice& advice);

}  // namespace awizo
