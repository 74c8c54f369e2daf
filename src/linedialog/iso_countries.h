#pragma once

#include <span>
#include <string_view>

namespace awizo {

/// A country of the fixed list, old codes included.
struct IsoCountry {
  std::string_view code;  ///< two capital letters
  std::string_view name;  ///< Russian
};

/// All 236 countries in the order of their Russian names.
std::span<const IsoCountry> isoCountries();

}  // namespace awizo
