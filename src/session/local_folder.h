#pragma once

#include <string>
#include <string_view>

namespace awizo {

// Files of the local folder, by classic paths. A separator of paths in a name becomes "_", so that
// none of them lies elsewhere.

/// "c:\VIRD\userinfo.xml".
std::string userInfoFile(std::string_view folder);
/// "c:\VIRD\9520001000010_9520002000019_partner_INFO.xml".
std::string partnerInfoFile(std::string_view folder, std::string_view sellerIln,
                            std::string_view buyerIln);
/// "c:\VIRD\PARTNERAwizo.log".
std::string debugLogFile(std::string_view folder, std::string_view partnerName);

}  // namespace awizo
