#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace awizo {

/// "(RU)Россия": a country as the lists show it.
std::string countryEntry(std::string_view code, std::string_view name);

/// The ten countries with which the lists of countries begin, as the lists show them.
std::vector<std::string> fixedCountryEntries();

/// Country code at the index of the main form's list of countries; the typed text itself for -1,
/// which is what a list reports when nothing was picked; the empty text past the last country.
std::string symbolKraj(std::int16_t index, std::string_view typedText);

/// Index of the country code in that list; case matters; -1 for any other text.
std::int16_t indexKraj(std::string_view code);

}  // namespace awizo
