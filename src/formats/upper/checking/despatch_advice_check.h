#pragma once

#include <string_view>
#include <vector>

#include "formats/upper/checking/document_check.h"

namespace awizo {

/// Who may read the document by what it says itself.
ReaderIdentity intendedReader(XmlDocument& document);

/// Findings in the despatch advice of a file, in no order.
std::vector<Finding> checkDespatchAdvice(const Platform& platform, std::string_view path,
                                         const ReaderIdentity& intended,
                                         const ReaderIdentity& reader);

}  // namespace awizo
