#include "desk/addresses.h"

#include <algorithm>

#include "desk/desk_settings.h"
#include "service/exchanges.h"

namespace awizo {
namespace {

constexpr std::string_view agreedAddresses = "AgreedAddresses";

}  // namespace

bool isWebAddress(const SplitAddress& split, std::string_view url) {
  const AddressParts parts = split(url);
  return parts.wellFormed && !parts.origin.empty() &&
         (parts.scheme == "http" || parts.scheme == "https");
}

std::string originOf(const SplitAddress& split, std::string_view url) {
  const AddressParts parts = split(url);
  return parts.origin.empty() ? std::string(url) : parts.origin;
}

std::vector<std::string> serviceOrigins(const SplitAddress& split, std::string_view pageUrl,
                                        std::string_view partnerUrl) {
  const std::string base = GetBaseUrl(pageUrl);
  std::vector<std::string> origins;
  for (const std::string& url :
       {partnersUrl(base), productCatalogueUrl(base), localizationCatalogueUrl(base),
        orderDataUrl(base, partnerUrl), uploadUrl(base, partnerUrl)}) {
    const std::string origin = originOf(split, url);
    if (std::ranges::find(origins, origin) == origins.end()) origins.push_back(origin);
  }
  return origins;
}

bool AgreedAddresses::holds(const std::string& origin) const {
  return settings_.read(deskSettings, agreedAddresses, origin, "") == "yes";
}

void AgreedAddresses::add(const std::string& origin) {
  settings_.write(deskSettings, agreedAddresses, origin, "yes");
}

}  // namespace awizo
