#include "formats/upper/checking/package_findings.h"

#include <string>
#include <unordered_set>

#include "packagedialog/serial_number.h"

namespace awizo {
namespace {

constexpr std::string_view packageKind =
    "Document-DespatchAdvice/DespatchAdvice-Consignment/Packing-Sequence";
constexpr std::string_view referenceKind =
    "Document-DespatchAdvice/DespatchAdvice-Lines/Line/Package-Reference/PackageId";

/// Whether the place is this child of a package.
bool isOfPackage(const DocumentMap::Place& place, std::string_view name) {
  return place.kind.size() == packageKind.size() + 1 + name.size() &&
         place.kind.starts_with(packageKind) && place.kind.ends_with(name);
}

}  // namespace

std::vector<Finding> packageFindings(const DocumentMap& map) {
  std::vector<Finding> findings;
  std::unordered_set<std::string> serials;
  for (const DocumentMap::Place& place : map.places()) {
    if (!isOfPackage(place, "PackageId")) continue;
    const std::string serial = place.node.text();
    if (!serials.insert(serial).second) {
      findings.push_back(map.finding(place.node, "упаковка " + quoted(serial) + " уже есть"));
    }
  }
  for (const DocumentMap::Place& place : map.places()) {
    if (place.kind == referenceKind || isOfPackage(place, "ParentId")) {
      const std::string serial = place.node.text();
      if (serials.contains(serial)) continue;
      findings.push_back(
          map.finding(place.node, "упаковки " + quoted(serial) + " в документе нет"));
    } else if (isOfPackage(place, "SerialNumber")) {
      const std::string refusal = serialNumberRefusal(place.node.text());
      if (!refusal.empty()) findings.push_back(map.finding(place.node, refusal));
    }
  }
  return findings;
}

}  // namespace awizo
