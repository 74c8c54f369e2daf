#include "formats/packing.h"

#include <string_view>
#include <unordered_map>

namespace awizo {
namespace {

class PackingMaker {
 public:
  explicit PackingMaker(const DespatchAdvice& advice)
      : advice_(advice), children_(advice.packages.size()), places_(advice.packages.size()) {
    for (std::size_t i = 0; i < advice.packages.size(); ++i) {
      if (!advice.packages[i].id.empty()) byId_.try_emplace(advice.packages[i].id, i);
    }
  }

  Packing make() {
    std::vector<std::size_t> top;
    for (std::size_t i = 0; i < advice_.packages.size(); ++i) {
      const auto parent = byId_.find(advice_.packages[i].parentId);
      (parent == byId_.end() ? top : children_[parent->second]).push_back(i);
    }
    for (const std::size_t package : top) addWithContent(package);
    // What no top package leads to has parents in a circle.
    for (std::size_t i = 0; i < advice_.packages.size(); ++i) addWithContent(i);
    for (const AdviceLine& line : advice_.lines) addLine(line);
    return std::move(packing_);
  }

 private:
  /// A chain of packages can be as long as the document, so nothing calls itself here.
  void addWithContent(std::size_t first) {
    struct Step {
      std::size_t package;
      int level;
    };
    std::vector<Step> next{{first, 1}};
    while (!next.empty()) {
      const auto [package, level] = next.back();
      next.pop_back();
      if (places_[package]) continue;
      places_[package] = packing_.packages.size();
      packing_.packages.push_back({&advice_.packages[package], level, {}});
      const std::vector<std::size_t>& inside = children_[package];
      for (auto child = inside.rbegin(); child != inside.rend(); ++child) {
        next.push_back({*child, level + 1});
      }
    }
  }

  void addLine(const AdviceLine& line) {
    if (line.packages.empty()) packing_.unpacked.push_back({&line, std::nullopt});
    for (const PackageReference& reference : line.packages) {
      const auto found = byId_.find(reference.packageId);
      std::vector<PackedPart>& lines = found == byId_.end()
                                           ? packing_.unpacked
                                           : packing_.packages[*places_[found->second]].lines;
      lines.push_back({&line, reference.quantity});
    }
  }

  const DespatchAdvice& advice_;
  Packing packing_;
  std::unordered_map<std::string_view, std::size_t> byId_;
  std::vector<std::vector<std::size_t>> children_;
  std::vector<std::optional<std::size_t>> places_;  ///< of each package among those added
};

}  // namespace

Packing packingOf(const DespatchAdvice& advice) { return PackingMaker(advice).make(); }

}  // namespace awizo
