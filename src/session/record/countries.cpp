#include "session/record/countries.h"

#include <array>

namespace awizo {
namespace {

struct FixedCountry {
  std::string_view code;  ///< two capital letters
  std::string_view name;  ///< Russian
};

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

std::string countryEntry(std::string_view code, std::string_view name) {
  std::string entry = "(";
  entry += code;
  entry += ")";
  entry += name;
  return entry;
}

std::vector<std::string> fixedCountryEntries() {
  std::vector<std::string> entries;
  entries.reserve(countries.size());
  for (const FixedCountry& country : countries) {
    entries.push_back(countryEntry(country.code, country.name));
  }
  return entries;
}

std::string symbolKraj(std::int16_t index, std::string_view typedText) {
  if (index == -1) return std::string(typedText);
  const auto place = static_cast<std::size_t>(index);
  return index >= 0 && place < countries.size() ? std::string(countries[place].code)
                                                : std::string();
}

std::int16_t indexKraj(std::string_view code) {
  std::int16_t index = 0;
  for (const FixedCountry& country : countries) {
    if (country.code == code) return index;
    ++index;
  }
  return -1;
}

}  // namespace awizo
