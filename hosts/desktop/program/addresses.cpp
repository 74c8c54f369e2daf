#include "hosts/desktop/program/addresses.h"

#include <QUrl>
#include <algorithm>

#include "hosts/desktop/faces/text.h"
#include "service/exchanges.h"

namespace awizo::desktop {
namespace {

constexpr std::string_view application = "Awizo";
constexpr std::string_view section = "AgreedAddresses";

}  // namespace

bool isWebAddress(std::string_view url) {
  const QUrl parsed(fromText(url), QUrl::StrictMode);
  return parsed.isValid() && !parsed.host().isEmpty() &&
         (parsed.scheme() == "http" || parsed.scheme() == "https");
}

std::string originOf(std::string_view url) {
  const QUrl parsed(fromText(url));
  if (!parsed.isValid() || parsed.host().isEmpty()) return std::string(url);
  return toText(parsed
                    .adjusted(QUrl::RemovePath | QUrl::RemoveQuery | QUrl::RemoveFragment |
                              QUrl::RemoveUserInfo)
                    .toString());
}

std::vector<std::string> serviceOrigins(std::string_view pageUrl, std::string_view partnerUrl) {
  const std::string base = GetBaseUrl(pageUrl);
  std::vector<std::string> origins;
  for (const std::string& url :
       {partnersUrl(base), productCatalogueUrl(base), localizationCatalogueUrl(base),
        orderDataUrl(base, partnerUrl), uploadUrl(base, partnerUrl)}) {
    const std::string origin = originOf(url);
    if (std::ranges::find(origins, origin) == origins.end()) origins.push_back(origin);
  }
  return origins;
}

bool AgreedAddresses::holds(const std::string& origin) const {
  return settings_.read(application, section, origin, "") == "yes";
}

void AgreedAddresses::add(const std::string& origin) {
  settings_.write(application, section, origin, "yes");
}

}  // namespace awizo::desktop
