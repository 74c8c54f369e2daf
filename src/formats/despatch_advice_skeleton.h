#pragma once

#include <memory>

#include "formats/despatch_advice.h"
#include "platform/xml.h"

namespace awizo {

/// The document of a despatch advice without its values, packages and lines: an optional value that
/// is empty gives no element, and without lines neither these nor the summary stand in it.
std::unique_ptr<XmlDocument> CreateDesAdvSkeleton(const Xml& xml, const DespatchAdvice& advice);

}  // namespace awizo
