#include "formats/advice_of_document.h"

#include <string>
#include <utility>

#include "formats/despatch_advice_elements.h"

namespace awizo {
namespace {

/// Takes the values below the element by their paths.
template <class Part, class Elements>
void takePaths(const XmlNode& node, const Elements& elements, Part& part) {
  for (const auto& element : elements) {
    const XmlNode found = node.selectSingle(element.path);
    if (found) part.*element.value = found.text();
  }
}

/// Takes the values of the element's children. There may be many such elements, and a path costs
/// more than a look at a few children.
template <class Part, class Elements>
void takeChildren(const XmlNode& node, const Elements& elements, Part& part) {
  for (const XmlNode& child : node.children()) {
    for (const auto& element : elements) {
      std::string& value = part.*element.value;
      if (value.empty() && child.isElement(element.path)) value = child.text();
    }
  }
}

AdvicePackage packageOf(const XmlNode& node) {
  AdvicePackage package;
  takeChildren(node, packageElements, package);
  return package;
}

PackageReference referenceOf(const XmlNode& node) {
  PackageReference reference;
  for (const XmlNode& child : node.children()) {
    if (reference.packageId.empty() && child.isElement("PackageId")) {
      reference.packageId = child.text();
    }
    if (reference.quantity.value_or("").empty() && child.isElement("Quantity")) {
      reference.quantity = child.text();
    }
  }
  return reference;
}

AdviceLine lineOf(const XmlNode& node) {
  AdviceLine line;
  for (const XmlNode& child : node.children()) {
    if (child.isElement("Line-Item")) takeChildren(child, lineElements, line);
    if (child.isElement("Package-Reference")) line.packages.push_back(referenceOf(child));
  }
  return line;
}

/// Whether it stands for the whole consignment and has no other value.
bool isConsignment(const AdvicePackage& package) {
  AdvicePackage consignment;
  consignment.id = consignmentId;
  return package == consignment;
}

}  // namespace

DespatchAdvice adviceOf(XmlDocument& document) {
  AdviceNodes nodes;
  return adviceOf(document, nodes);
}

DespatchAdvice adviceOf(XmlDocument& document, AdviceNodes& nodes) {
  DespatchAdvice advice;
  const XmlNode root = document.node().selectSingle("/Document-DespatchAdvice");
  if (!root) return advice;
  takePaths(root, headerElements, advice.header);
  bool isFirst = true;
  for (const XmlNode& node : root.selectAll("DespatchAdvice-Consignment/Packing-Sequence")) {
    AdvicePackage package = packageOf(node);
    if (std::exchange(isFirst, false) && isConsignment(package)) {
      nodes.consignment = node;
    } else {
      nodes.packages.push_back(node);
      advice.packages.push_back(std::move(package));
    }
  }
  for (const XmlNode& node : root.selectAll("DespatchAdvice-Lines/Line")) {
    nodes.lines.push_back(node);
    advice.lines.push_back(lineOf(node));
  }
  takePaths(root, totalElements, advice.totals);
  return advice;
}

}  // namespace awizo
