#include "adapters/libxml2/flat_tree.h"

#include <functional>

#include "adapters/libxml2/moving.h"
#include "adapters/libxml2/text.h"
#include "platform/run_time_error.h"

namespace awizo::libxml2 {
namespace {

xmlNode* grownNode(const FlatTree& tree, const FlatNode& node, xmlDoc& document) {
  xmlNode* copy = nullptr;
  if (node.isText || node.isSection) {
    const std::string_view text =
        std::string_view(tree.texts).substr(node.textStart, node.textEnd - node.textStart);
    const auto make = node.isText ? xmlNewDocTextLen : xmlNewCDataBlock;
    copy = make(&document, bytesOf(text.data()), static_cast<int>(text.size()));
  } else {
    copy = xmlNewDocNodeEatName(&document, nullptr, const_cast<xmlChar*>(node.name), nullptr);
  }
  if (!copy) throw errors::outOfMemory();
  copy->line = node.line;
  copy->_private = const_cast<FlatNode*>(&node);
  return copy;
}

}  // namespace

bool FlatTree::holds(const void* address) const {
  const std::less<const void*> before;
  return !nodes.empty() && !before(address, nodes.data()) &&
         before(address, nodes.data() + nodes.size());
}

std::string_view FlatTree::trimmedText(const FlatNode* node) const {
  return trimmed(std::string_view(texts).substr(node->textStart, node->textEnd - node->textStart));
}

std::string FlatTree::nameOf(const FlatNode* node) const {
  if (node->isText) return "#text";
  if (node->isSection) return "#cdata-section";
  return node->name ? std::string(viewOf(node->name)) : "#document";
}

void FlatTree::keepOnly(const FlatNode* element) {
  const std::size_t kept = indexOf(element);
  nodes[kept].isLast = true;
  top = kept - 1;
  nodes[top] = {.size = element->size + 1,
                .textStart = element->textStart,
                .textEnd = element->textEnd,
                .isLast = true};
}

std::vector<xmlNode*> grow(const FlatTree& tree, xmlDoc& document) {
  std::vector<xmlNode*> grown(tree.nodes.size());
  auto* parent = reinterpret_cast<xmlNode*>(&document);
  const FlatNode* const end = tree.document() + tree.document()->size;
  for (const FlatNode* node = tree.root(); node != end; ++node) {
    xmlNode* copy = grownNode(tree, *node, document);
    grown[tree.indexOf(node)] = copy;
    linkLast(parent, copy);
    if (node->size > 1) {
      parent = copy;
      continue;
    }
    // Up again, past all that end with this node.
    for (const FlatNode* last = node; last->isLast && parent->type != XML_DOCUMENT_NODE;) {
      last = static_cast<const FlatNode*>(parent->_private);
      parent = parent->parent;
    }
  }
  return grown;
}

}  // namespace awizo::libxml2
