#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "adapters/libxml2/handles.h"

namespace awizo::libxml2 {

/// A document, an element, a text or a CDATA section; what is below it follows it directly.
struct FlatNode {
  const xmlChar* name = nullptr;  ///< an element's, from the document's dictionary
  std::uint32_t size = 1;         ///< this node and all below it
  std::uint32_t textStart = 0;    ///< where the texts below it are among all texts
  std::uint32_t textEnd = 0;
  std::uint16_t line = 0;
  bool isText = false;
  bool isSection = false;
  bool isLast = false;  ///< among its parent's children
};

/// A document of nothing but elements, texts and CDATA sections, for reading: all nodes in one
/// array and all texts in one string, both in document order. A large catalogue takes a sixth of
/// the memory that libxml2's tree of it takes, and a fraction of the time to be made and to be
/// freed.
struct FlatTree {
  std::vector<FlatNode> nodes;
  std::string texts;
  std::size_t top = 0;  ///< the document's node; its element follows it

  const FlatNode* document() const { return &nodes[top]; }
  const FlatNode* root() const { return &nodes[top + 1]; }
  std::size_t indexOf(const FlatNode* node) const {
    return static_cast<std::size_t>(node - nodes.data());
  }
  bool holds(const void* address) const;

  // What a walk by names needs of a tree.
  const FlatNode* firstChild(const FlatNode* node) const {
    return node->size > 1 ? node + 1 : nullptr;
  }
  const FlatNode* next(const FlatNode* node) const {
    return node->isLast ? nullptr : node + node->size;
  }
  bool isElementNamed(const FlatNode* node, std::string_view name) const {
    return node->name && viewOf(node->name) == name;
  }
  /// The text of the node and all texts below it in one, outer white space cut.
  std::string_view trimmedText(const FlatNode* node) const;

  std::string nameOf(const FlatNode* node) const;
  /// Makes an element the document element; all outside it is no more part of the document.
  void keepOnly(const FlatNode* element);
};

/// Puts the tree's nodes into a document of libxml2 that has none. The result has the node of each
/// node of the flat tree, whose address is the new node's `_private`; none for those that are not
/// part of the document any more. The document has the dictionary of the names.
std::vector<xmlNode*> grow(const FlatTree& tree, xmlDoc& document);

}  // namespace awizo::libxml2
