#pragma once

#include <string_view>
#include <vector>

#include "formats/checking/document_check.h"

namespace awizo {

/// Findings in a despatch advice, in no order. `loaded` is what the file holds.
std::vector<Finding> checkDespatchAdvice(const Platform& platform, std::string_view path,
                                         XmlDocument& loaded, const ReaderIdentity& reader);

}  // namespace awizo
