#include "formats/upper/checking/ignored_elements.h"

#include <map>
#include <set>
#include <string>

namespace awizo {
namespace {

/// What a reader did with each place of a document.
class Attention {
 public:
  Attention(const DocumentMap& map, const TracedDocument& document)
      : map_(map), looked_(map.places().size()), covered_(map.places().size()) {
    // Parents come before their children.
    for (std::size_t i = 0; i < looked_.size(); ++i) {
      const DocumentMap::Place& place = map.places()[i];
      looked_[i] = document.wasFound(place.node);
      covered_[i] = document.wasTaken(place.node) || (i != 0 && covered_[place.parent]);
      if (looked_[i]) readKinds_.insert(place.kind);
    }
    for (std::size_t i = looked_.size(); i-- > 1;) {
      if (looked_[i]) looked_[map.places()[i].parent] = true;
    }
  }

  /// Ignored, and the highest element that is.
  bool startsIgnored(std::size_t i) const {
    return i != 0 && !looked_[i] && !covered_[i] && looked_[map_.places()[i].parent];
  }
  bool isReadElsewhere(const std::string& kind) const { return readKinds_.contains(kind); }

 private:
  const DocumentMap& map_;
  std::vector<bool> looked_;   ///< it, or something below it
  std::vector<bool> covered_;  ///< it or something above it was taken as text
  std::set<std::string> readKinds_;
};

struct Ignored {
  XmlNode first;
  int count = 0;
};

}  // namespace

std::vector<Finding> ignoredElements(const DocumentMap& map, const TracedDocument& document,
                                     std::size_t end, const KnownKinds& known) {
  const Attention attention(map, document);
  std::map<std::string, Ignored> byKind;
  for (std::size_t i = 0; i < end; ++i) {
    if (!attention.startsIgnored(i)) continue;
    const DocumentMap::Place& place = map.places()[i];
    Ignored& ignored = byKind[place.kind];
    if (ignored.count++ == 0) ignored.first = place.node;
  }
  std::vector<Finding> findings;
  for (const auto& [kind, ignored] : byKind) {
    std::string text = attention.isReadElsewhere(kind) ? "повторный элемент, читается только первый"
                       : known(kind) ? "не читается"
                                     : "неизвестный элемент, не читается";
    if (ignored.count > 1) text += " (всего таких: " + std::to_string(ignored.count) + ")";
    findings.push_back(map.finding(ignored.first, text));
  }
  return findings;
}

}  // namespace awizo
