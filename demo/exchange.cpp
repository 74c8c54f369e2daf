#include "demo/exchange.h"

#include <algorithm>

namespace awizo::demo {

namespace {

struct ExchangeEntry {
  Exchange exchange;
  std::string_view name;
  std::string_view page;
};

constexpr std::array<ExchangeEntry, allExchanges.size()> entries{{
    {Exchange::partnerInfo, "partner-info", "Partners.aspx"},
    {Exchange::productCatalogue, "catalogue", "GetDocument.aspx"},
    {Exchange::deliveryPlaces, "places", "Dictionary.aspx"},
    {Exchange::order, "order", "OrderData.aspx"},
    {Exchange::upload, "upload", "Upload.aspx"},
}};

std::optional<Exchange> entryWith(std::string_view ExchangeEntry::*field, std::string_view text) {
  const auto entry = std::ranges::find(entries, text, field);
  if (entry == entries.end()) return std::nullopt;
  return entry->exchange;
}

}  // namespace

std::string_view exchangeName(Exchange exchange) {
  return std::ranges::find(entries, exchange, &ExchangeEntry::exchange)->name;
}

std::optional<Exchange> exchangeNamed(std::string_view name) {
  return entryWith(&ExchangeEntry::name, name);
}

std::optional<Exchange> exchangeAt(std::string_view path) {
  const auto slash = path.rfind('/');
  if (slash == std::string_view::npos) return std::nullopt;
  return entryWith(&ExchangeEntry::page, path.substr(slash + 1));
}

}  // namespace awizo::demo
