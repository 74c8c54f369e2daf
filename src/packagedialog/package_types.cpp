#include "packagedialog/package_types.h"

#include <array>

namespace awizo {
namespace {

struct PackageType {
  std::string_view name;
  std::string_view code;
};

constexpr std::array<PackageType, 3> packageTypes{
    {{"Паллета", "09"}, {"Коробка", "201"}, {"Возвратная тара", "PK"}}};

}  // namespace

std::vector<std::string> packageTypeRows() {
  std::vector<std::string> rows;
  rows.reserve(packageTypes.size());
  for (const PackageType& type : packageTypes) rows.emplace_back(type.name);
  return rows;
}

std::string symbolPackageType(std::int16_t index) {
  if (index < 0 || static_cast<std::size_t>(index) >= packageTypes.size()) return {};
  return std::string(packageTypes[static_cast<std::size_t>(index)].code);
}

std::int16_t indexPackageType(const Locale& locale, std::string_view code) {
  for (std::size_t i = 0; i < packageTypes.size(); ++i) {
    if (locale.sameIgnoringCase(packageTypes[i].code, code)) return static_cast<std::int16_t>(i);
  }
  return -1;
}

}  // namespace awizo
