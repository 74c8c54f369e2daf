#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace awizo {

/// A country with which the lists of countries begin.
struct FixedCountry {
  std::string_view code;  ///< two capital letters
  std::string_view name;  ///< Russian
};

/// The ten countries in the order of the lists.
std::span<const FixedCountry> fixedCountries();

/// "(RU)Россия": a country as the lists show it.
std::string countryEntry(std::string_view code, std::string_view name);

/// The ten countries as the lists show them.
std::vector<std::string> fixedCountryEntries();

}  // namespace awizo
