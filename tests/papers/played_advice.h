#pragma once

#include <string>
#include <vector>

#include "formats/despatch_advice.h"
#include "papers/gs1.h"

namespace awizo::test {

/// The number of 17 digits with its last one.
inline std::string serialNumber(int number) {
  std::string digits = std::to_string(number);
  digits = "39520001" + std::string(9 - digits.size(), '0') + digits;
  for (char last = '0'; last <= '9'; ++last) {
    if (papers::hasRightCheckDigit(digits + last)) return digits + last;
  }
  return "";
}

inline AdvicePackage& addPackage(DespatchAdvice& advice, const std::string& id,
                                 const std::string& parent = "1", const std::string& type = "201") {
  AdvicePackage& package = advice.packages.emplace_back();
  package.id = id;
  package.parentId = parent;
  package.type = type;
  package.serialNumber = serialNumber(std::stoi(id));
  return package;
}

inline AdviceLine& addLine(DespatchAdvice& advice, const std::string& despatched,
                           std::vector<PackageReference> packages) {
  AdviceLine& line = advice.lines.emplace_back();
  line.number = std::to_string(advice.lines.size());
  line.ean = "9520001010019";
  line.description = "Молоко";
  line.unit = "PCE";
  line.despatched = despatched;
  line.packages = std::move(packages);
  return line;
}

}  // namespace awizo::test
