#include "formats/upper/checking/document_map.h"

#include <map>
#include <utility>

namespace awizo {
namespace {

std::vector<XmlNode> childElements(const XmlNode& element) {
  std::vector<XmlNode> elements;
  for (const XmlNode& child : element.children()) {
    // What is no text and no comment and yet no element of its name is one of a namespace, or an
    // instruction.
    const std::string name = child.name();
    if (name.starts_with('#')) continue;
    if (child.isElement(name) || !child.xml().starts_with("<?")) elements.push_back(child);
  }
  return elements;
}

}  // namespace

DocumentMap::DocumentMap(XmlDocument& document) {
  if (const XmlNode root = document.root()) add(root, root.name(), 0, 0);
}

/// A loaded document is at most some hundred levels deep.
void DocumentMap::add(const XmlNode& element, const std::string& kind, std::size_t parent,
                      int ofName) {
  const std::size_t number = places_.size();
  const std::string& kept = *kinds_.insert(kind).first;
  numbers_[element.handle()] = number;
  places_.push_back({element, kept, parent, ofName});
  const std::vector<XmlNode> children = childElements(element);
  std::map<std::string, int> all;
  for (const XmlNode& child : children) ++all[child.name()];
  std::map<std::string, int> seen;
  for (const XmlNode& child : children) {
    const std::string name = child.name();
    const int ordinal = ++seen[name];
    add(child, kept + "/" + name, number, all[name] > 1 ? ordinal : 0);
  }
}

std::string DocumentMap::pathOf(const XmlNode& node) const {
  std::string path;
  std::size_t number = numberOf(node);
  if (number == 0) return places_.at(0).kind;
  for (; number != 0; number = places_[number].parent) {
    const Place& place = places_[number];
    std::string step = place.node.name();
    if (place.ofName > 0) step += "[" + std::to_string(place.ofName) + "]";
    path = path.empty() ? step : step + "/" + path;
  }
  return path;
}

const DocumentMap::Place& DocumentMap::placeOf(const XmlNode& node) const {
  return places_.at(numberOf(node));
}

std::size_t DocumentMap::numberOf(const XmlNode& node) const {
  const auto found = numbers_.find(node.handle());
  return found == numbers_.end() ? 0 : found->second;
}

std::string belowRoot(std::string_view path) {
  return std::string(path.substr(path.find('/', 1) + 1));
}

Finding DocumentMap::finding(const XmlNode& node, std::string text) const {
  return {placeOf(node).node.line(), pathOf(node), std::move(text)};
}

}  // namespace awizo
