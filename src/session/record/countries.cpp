#include "session/record/countries.h"

#include <array>

namespace awizo {
namespace {

constexpr std::array<FixedCountry, 10> countries{{{"RU", "Россия"},
                                                  {"BY", "Белоруссия"},
                                                  {"KZ", "Казахстан"},
                                                  {"CN", "Китай"},
                                                  {"LV", "Латвия"},
                                                  {"LT", "Литва"},
                                                  {"PL", "Польша"},
                                                  {"UA", "Украина"},
                                                  {"FI", "Финляндия"},
                                                  {"EE", "Эстония"}}};

}  // namespace

std::span<const FixedCountry> fixedCountries() { return countries; }

std::string countryEntry(std::string_view code, std::string_view name) {
  std::string entry = "(";
  entry += code;
  entry += ")";
  entry += name;
  return entry;
}

std::vector<std::string> fixedCountryEntries() {
  std::vector<std::string> entries;
  entries.reserve(std::size(countries));
  for (const FixedCountry& country : countries) {
    entries.push_back(countryEntry(country.code, country.name));
  }
  return entries;
}

}  // namespace awizo
