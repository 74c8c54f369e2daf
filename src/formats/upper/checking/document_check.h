#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "formats/upper/checking/finding.h"
#include "platform/forms/platform.h"

namespace awizo {

/// Who would read the document, as far as known: a text that is empty isn't compared.
struct ReaderIdentity {
  std::string sellerILN;
  std::string buyerILN;
};

/// Who the readers are by the local folder (a classic path, empty for none) and the partner's
/// number.
ReaderIdentity readerIdentity(const Platform& platform, std::string_view folder,
                              std::string_view partnerILN);

/// What of the file, a despatch advice or an order, will be refused, ignored or changed when it is
/// read, in the order of its lines. The document goes through the readers themselves, on an editor
/// of its own; of the platform only XML, files, clock and locale are used. Raises the error of a
/// file that can't be read.
std::vector<Finding> checkDocument(const Platform& platform, std::string_view path,
                                   const ReaderIdentity& reader);

}  // namespace awizo
