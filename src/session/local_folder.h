#pragma once

#include <string>
#include <string_view>

namespace awizo {

// Files of the local folder, by classic paths. A separator of paths in a name becomes "_", so that
// none of them lies elsewhere.
std::string userInfoFile(std::string_view folder);
std::string partnerInfoFile(std::string_view folder, std::string_view sellerIln,
                            std::string_view buyerIln);
std::string debugLogFile(std::string_view folder, std::string_view partnerName);

}  // namespace awizo
