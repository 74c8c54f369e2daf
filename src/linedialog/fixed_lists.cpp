#include "linedialog/fixed_lists.h"

#include <array>
#include <span>

namespace awizo {
namespace {

using Texts = std::span<const std::string_view>;

// The first name ends in a Latin letter a.
constexpr std::array<std::string_view, 9> unitNames{
    "Штукa", "Килограмм", "Метр", "Километр", "Упаковка", "Комплект", "Пара", "Тонна", "Литр"};
constexpr std::array<std::string_view, 9> unitCodes{"PCE", "KGM", "MTR", "KMT", "PA",
                                                    "SET", "PR",  "TNE", "LTR"};
constexpr std::array<std::string_view, 2> taxCategories{"S", "E"};
constexpr std::array<std::string_view, 3> taxRates{"0", "10", "18"};

std::vector<std::string> rowsOf(Texts texts) { return {texts.begin(), texts.end()}; }

std::string textAt(Texts texts, std::int16_t index) {
  const auto place = static_cast<std::size_t>(index);
  return index >= 0 && place < texts.size() ? std::string(texts[place]) : std::string();
}

template <class Matches>
std::int16_t firstIndex(Texts texts, Matches matches) {
  for (std::size_t i = 0; i < texts.size(); ++i) {
    if (matches(texts[i])) return static_cast<std::int16_t>(i);
  }
  return -1;
}

std::int16_t indexIgnoringCase(const Locale& locale, Texts texts, std::string_view text) {
  return firstIndex(texts,
                    [&](std::string_view known) { return locale.sameIgnoringCase(known, text); });
}

}  // namespace

std::vector<std::string> unitRows() { return rowsOf(unitNames); }

std::string unitCode(std::int16_t index) { return textAt(unitCodes, index); }

std::int16_t unitIndex(const Locale& locale, std::string_view code) {
  return indexIgnoringCase(locale, unitCodes, code);
}

std::vector<std::string> taxCategoryRows() { return rowsOf(taxCategories); }

std::string taxCategoryCode(std::int16_t index) { return index == 0 ? "S" : "E"; }

std::int16_t taxCategoryIndex(const Locale& locale, std::string_view code) {
  return indexIgnoringCase(locale, taxCategories, code);
}

std::vector<std::string> taxRateRows() { return rowsOf(taxRates); }

std::string taxRateCode(std::int16_t index) { return textAt(taxRates, index); }

std::int16_t taxRateIndex(std::string_view rate) {
  return firstIndex(taxRates, [&](std::string_view known) { return known == rate; });
}

}  // namespace awizo
