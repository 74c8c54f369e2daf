#include "formats/despatch_advice_elements.h"

namespace awizo {
namespace {

/// Adds the path, and those of the elements above it.
void addKind(std::set<std::string>& kinds, std::string path) {
  while (kinds.insert(path).second) {
    const std::size_t end = path.rfind('/');
    if (end == path.npos) return;
    path.erase(end);
  }
}

template <class Elements>
void addKinds(std::set<std::string>& kinds, const std::string& above, const Elements& elements) {
  for (const auto& element : elements) addKind(kinds, above + std::string(element.path));
}

}  // namespace

std::set<std::string> writtenKinds() {
  const std::string document = "Document-DespatchAdvice/";
  const std::string line = document + "DespatchAdvice-Lines/Line/";
  std::set<std::string> kinds;
  addKinds(kinds, document, headerElements);
  addKinds(kinds, document + "DespatchAdvice-Consignment/Packing-Sequence/", packageElements);
  addKinds(kinds, line + "Line-Item/", lineElements);
  addKind(kinds, line + "Package-Reference/PackageId");
  addKind(kinds, line + "Package-Reference/Quantity");
  addKinds(kinds, document, totalElements);
  return kinds;
}

}  // namespace awizo
