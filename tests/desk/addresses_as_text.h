#pragma once

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>

#include "desk/addresses.h"

namespace awizo::test {

/// Splits an address by its signs alone, as far as tests need it.
inline AddressParts splitText(std::string_view url) {
  AddressParts parts;
  const std::size_t colon = url.find("://");
  if (colon == url.npos) return parts;
  const std::size_t host = colon + 3;
  const std::size_t end = std::min(url.find_first_of("/?#", host), url.size());
  if (end == host) return parts;
  parts.scheme = url.substr(0, colon);
  parts.origin = url.substr(0, end);
  parts.wellFormed = url.find(' ') == url.npos;
  return parts;
}

}  // namespace awizo::test
