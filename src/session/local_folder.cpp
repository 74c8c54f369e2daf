#include "session/local_folder.h"

#include "platform/text.h"

namespace awizo {
namespace {

/// The parts of a file's name come from documents and from the host's page; it must not lead out of
/// the folder.
std::string nameOnly(std::string_view text) {
  return replaceAll(replaceAll(text, "\\", "_"), "/", "_");
}

}  // namespace

std::string userInfoFile(std::string_view folder) { return joined({folder, "\\userinfo.xml"}); }

std::string partnerInfoFile(std::string_view folder, std::string_view sellerIln,
                            std::string_view buyerIln) {
  return joined({folder, "\\", nameOnly(sellerIln), "_", nameOnly(buyerIln), "_partner_INFO.xml"});
}

std::string debugLogFile(std::string_view folder, std::string_view partnerName) {
  return joined({folder, "\\", nameOnly(partnerName), "Awizo.log"});
}

}  // namespace awizo
