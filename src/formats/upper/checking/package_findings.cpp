#include "formats/upper/checking/package_findings.h"

#include <string>
#include <unordered_set>

#include "formats/advice_of_document.h"
#include "packagedialog/serial_number.h"

namespace awizo {
namespace {

class PackageFindings {
 public:
  PackageFindings(XmlDocument& document, const DocumentMap& map)
      : map_(map), advice_(adviceOf(document, nodes_)) {}

  std::vector<Finding> found() {
    takeIds();
    for (std::size_t i = 0; i < advice_.packages.size(); ++i) {
      lookAt(advice_.packages[i], nodes_.packages[i]);
    }
    for (std::size_t i = 0; i < advice_.lines.size(); ++i) {
      lookAt(advice_.lines[i].packages, nodes_.lines[i]);
    }
    return std::move(found_);
  }

 private:
  void takeIds() {
    if (nodes_.consignment) ids_.insert(consignmentId);
    for (std::size_t i = 0; i < advice_.packages.size(); ++i) {
      const std::string& id = advice_.packages[i].id;
      const XmlNode& node = nodes_.packages[i];
      if (id.empty() && !node.selectSingle("PackageId")) continue;
      if (ids_.insert(id).second) continue;
      add(node, "PackageId", "упаковка " + quoted(id) + " уже есть");
    }
  }

  void lookAt(const AdvicePackage& package, const XmlNode& node) {
    if (!ids_.contains(package.parentId)) add(node, "ParentId", isMissing(package.parentId));
    const std::string refusal = serialNumberRefusal(package.serialNumber);
    if (!refusal.empty()) add(node, "SerialNumber", refusal);
  }

  void lookAt(const std::vector<PackageReference>& references, const XmlNode& line) {
    std::size_t next = 0;
    for (const XmlNode& child : line.children()) {
      if (!child.isElement("Package-Reference")) continue;
      const std::string& id = references[next++].packageId;
      if (!ids_.contains(id)) add(child, "PackageId", isMissing(id));
    }
  }

  static std::string isMissing(const std::string& id) {
    return "упаковки " + quoted(id) + " в документе нет";
  }

  /// What isn't in the document at all is no finding here.
  void add(const XmlNode& part, std::string_view element, const std::string& text) {
    if (const XmlNode node = part.selectSingle(element)) found_.push_back(map_.finding(node, text));
  }

  const DocumentMap& map_;
  AdviceNodes nodes_;
  DespatchAdvice advice_;
  std::unordered_set<std::string> ids_;
  std::vector<Finding> found_;
};

}  // namespace

std::vector<Finding> packageFindings(XmlDocument& document, const DocumentMap& map) {
  return PackageFindings(document, map).found();
}

}  // namespace awizo
