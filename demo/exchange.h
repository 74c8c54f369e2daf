#pragma once

#include <array>
#include <optional>
#include <string_view>

namespace awizo::demo {

/// The five exchanges that the service offers. Each is one POST of an XML document.
enum class Exchange { partnerInfo, productCatalogue, deliveryPlaces, order, upload };

inline constexpr std::array allExchanges{Exchange::partnerInfo, Exchange::productCatalogue,
                                         Exchange::deliveryPlaces, Exchange::order,
                                         Exchange::upload};

// The name by which options and run-time commands call the exchange: "partner-info",
// "catalogue", "places", "order", "upload".
std::string_view exchangeName(Exchange exchange);
std::optional<Exchange> exchangeNamed(std::string_view name);

/// The exchange that the page at the end of `path` serves. The folders before it don't matter: the
/// service is at the root of the address as well as in any folder, and doubled slashes count as
/// one. Nothing for what is no page of the service.
std::optional<Exchange> exchangeAt(std::string_view path);

}  // namespace awizo::demo
