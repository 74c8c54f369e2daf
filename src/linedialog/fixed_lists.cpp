#include <array>

#include "linedialog/dlg_dodaj.h"
#include "session/record/countries.h"

namespace awizo {
namespace {

struct Unit {
  std::string_view name;
  std::string_view code;
};

// The first name ends in a Latin letter a.
constexpr std::array<Unit, 9> units{{{"Штукa", "PCE"},
                                     {"Килограмм", "KGM"},
                                     {"Метр", "MTR"},
                                     {"Километр", "KMT"},
                                     {"Упаковка", "PA"},
                                     {"Комплект", "SET"},
                                     {"Пара", "PR"},
                                     {"Тонна", "TNE"},
                                     {"Литр", "LTR"}}};
constexpr std::array<std::string_view, 2> categories{"S", "E"};
constexpr std::array<std::string_view, 3> rates{"0", "10", "18"};

}  // namespace

void DlgDodaj::fillFixedLists() {
  for (const Unit& unit : units) cboxJednostkaMiary.addRow(unit.name);
  for (const std::string_view category : categories) cboxKodVAT.addRow(category);
  for (const std::string_view rate : rates) cboxStawkaVAT.addRow(rate);
  comboCountry.setRows(fixedCountryEntries());
}

std::string DlgDodaj::symbolJednostkiMiary(std::int16_t index) const {
  if (index == -1) return cboxJednostkaMiary.text();
  const auto place = static_cast<std::size_t>(index);
  return index >= 0 && place < units.size() ? std::string(units[place].code) : std::string();
}

std::int16_t DlgDodaj::indexJednostkiMiary(std::string_view code) const {
  for (std::size_t i = 0; i < units.size(); ++i) {
    if (editor_.platform.locale.sameIgnoringCase(units[i].code, code)) {
      return static_cast<std::int16_t>(i);
    }
  }
  return -1;
}

// An unknown index gives "E" here, unlike the units and the rates.
std::string DlgDodaj::symbolKodVAT(std::int16_t index) const {
  if (index == -1) return cboxKodVAT.text();
  return index == 0 ? "S" : "E";
}

std::int16_t DlgDodaj::indexKodVAT(std::string_view code) const {
  for (std::size_t i = 0; i < categories.size(); ++i) {
    if (editor_.platform.locale.sameIgnoringCase(categories[i], code)) {
      return static_cast<std::int16_t>(i);
    }
  }
  return -1;
}

std::string DlgDodaj::symbolStawkaVAT(std::int16_t index) const {
  if (index == -1) return cboxStawkaVAT.text();
  const auto place = static_cast<std::size_t>(index);
  return index >= 0 && place < rates.size() ? std::string(rates[place]) : std::string();
}

std::int16_t DlgDodaj::indexStawkaVAT(std::string_view rate) const {
  for (std::size_t i = 0; i < rates.size(); ++i) {
    if (rates[i] == rate) return static_cast<std::int16_t>(i);
  }
  return -1;
}

}  // namespace awizo
