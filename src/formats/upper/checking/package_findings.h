#pragma once

#include <vector>

#include "formats/upper/checking/document_map.h"

namespace awizo {

/// What is wrong among the packages of a despatch advice: serials that occur twice, references that
/// name no package, serial numbers that the package dialog would refuse.
std::vector<Finding> packageFindings(XmlDocument& document, const DocumentMap& map);

}  // namespace awizo
