#include <array>

#include "session/awizo_wysylki.h"
#include "tables/flat_index.h"
#include "tables/package_references.h"
#include "tables/totals.h"

namespace awizo {
namespace {

struct UnitName {
  std::string_view name;
  std::string_view symbol;
};

/// Russian words for the first, Polish ones for the rest.
constexpr std::array<UnitName, 9> unitNames{{{"штука", "PCE"},
                                             {"килограмм", "KGM"},
                                             {"метр", "MTR"},
                                             {"kilometr", "KMT"},
                                             {"opakowanie", "PA"},
                                             {"komplet", "SET"},
                                             {"para", "PR"},
                                             {"tona", "TNE"},
                                             {"литр", "LTR"}}};

}  // namespace

std::string AwizoWysylki::MyCalculateWeight() { return awizo::MyCalculateWeight(editor); }

double AwizoWysylki::MyCalculatePartWeight(std::string& quantity, std::string& weight) {
  return awizo::MyCalculatePartWeight(editor, quantity, weight);
}

std::string AwizoWysylki::JednostkiMiaryNazwaToSymbol(std::string_view name) const {
  const std::string lower = editor.platform.locale.lower(name);
  for (const UnitName& unit : unitNames) {
    if (lower == unit.name) return std::string(unit.symbol);
  }
  return std::string(name);
}

void AwizoWysylki::ArrayRemoveItem(HostValue& array, std::int32_t index) {
  awizo::ArrayRemoveItem(array, index);
}

std::string AwizoWysylki::GridToString() {
  return awizo::GridToString(dlgDodaj.touch().grdPozycje);
}

void AwizoWysylki::StringToGrid(std::string_view text) {
  awizo::StringToGrid(dlgDodaj.touch().grdPozycje, text);
}

std::string AwizoWysylki::RemoveOldPackRef(std::string_view text,
                                           const std::vector<std::string>& delSerials) {
  return awizo::RemoveOldPackRef(editor, text, delSerials);
}

std::string AwizoWysylki::GetPackedQuantity(std::string_view text) {
  return awizo::GetPackedQuantity(editor, text);
}

std::int16_t AwizoWysylki::IndexGrdPozycje(std::int16_t row, std::int16_t col) const {
  return awizo::IndexGrdPozycje(editor, row, col);
}

std::int16_t AwizoWysylki::IndexGrdOpak(std::int16_t row, std::int16_t col) const {
  return awizo::IndexGrdOpak(editor, row, col);
}

std::int16_t AwizoWysylki::IndexGrdSuma(std::int16_t row, std::int16_t col) const {
  return awizo::IndexGrdSuma(editor, row, col);
}

std::int16_t AwizoWysylki::IndexGrdPozycjeDlgDodaj(std::int16_t row, std::int16_t col) {
  return flatIndex(dlgDodaj.touch().grdPozycje, row, col);
}

}  // namespace awizo
