#include "formats/despatch_advice_skeleton.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "formats/despatch_advice_elements.h"
#include "platform/text.h"

namespace awizo {
namespace {

/// Writes elements by their paths, in document order, with those that they lie in.
class NestedElements {
 public:
  void add(std::string_view path, std::string_view text) {
    std::vector<std::string> names = split(path, "/");
    const std::string name = std::move(names.back());
    names.pop_back();
    const auto differ = std::mismatch(open_.begin(), open_.end(), names.begin(), names.end());
    closeTo(static_cast<std::size_t>(differ.first - open_.begin()));
    for (auto above = differ.second; above != names.end(); ++above) {
      text_.append("<").append(*above).append(">");
      open_.push_back(*above);
    }
    text_.append("<").append(name).append(">").append(text);
    text_.append("</").append(name).append(">");
  }

  std::string take() {
    closeTo(0);
    return std::move(text_);
  }

 private:
  void closeTo(std::size_t depth) {
    for (; open_.size() > depth; open_.pop_back()) {
      text_.append("</").append(open_.back()).append(">");
    }
  }

  std::vector<std::string> open_;
  std::string text_;
};

}  // namespace

std::unique_ptr<XmlDocument> CreateDesAdvSkeleton(const Xml& xml, const DespatchAdvice& advice) {
  const std::string root = "Document-DespatchAdvice/";
  NestedElements elements;
  for (const HeaderElement& element : headerElements) {
    if (!stands(element.presence, advice.header.*element.value)) continue;
    elements.add(root + std::string(element.path), element.before);
  }
  elements.add(root + "DespatchAdvice-Consignment/Packing-Sequence/PackageId", consignmentId);
  if (!advice.lines.empty()) {
    elements.add(root + "DespatchAdvice-Lines", "");
    for (const auto& element : totalElements) elements.add(root + std::string(element.path), "");
  }
  std::unique_ptr<XmlDocument> document = xml.createDocument();
  document->loadText(elements.take());
  return document;
}

}  // namespace awizo
