#pragma once

#include <string_view>
#include <vector>

#include "adapters/libxml2/handles.h"

namespace awizo::libxml2 {

// Walks along child steps, each by a name ("Line/Line-Item/EAN"), in any tree that has
// `firstChild`, `next` and `isElementNamed`. They give nodes in document order.

/// The first name of the path; `rest` is what follows it, empty behind the last.
inline std::string_view firstName(std::string_view names, std::string_view& rest) {
  const std::size_t end = names.find('/');
  rest = end == names.npos ? std::string_view() : names.substr(end + 1);
  return names.substr(0, end);
}

/// A first child may lack what a later one of the same name has, so the walk goes back up.
template <class Tree, class Node>
Node firstBelow(const Tree& tree, Node parent, std::string_view names) {
  std::string_view rest;
  const std::string_view name = firstName(names, rest);
  for (Node child = tree.firstChild(parent); child; child = tree.next(child)) {
    if (!tree.isElementNamed(child, name)) continue;
    if (rest.empty()) return child;
    if (Node found = firstBelow(tree, child, rest)) return found;
  }
  return nullptr;
}

template <class Tree, class Node>
void allBelow(const Tree& tree, Node parent, std::string_view names, std::vector<Node>& found) {
  std::string_view rest;
  const std::string_view name = firstName(names, rest);
  for (Node child = tree.firstChild(parent); child; child = tree.next(child)) {
    if (!tree.isElementNamed(child, name)) continue;
    if (rest.empty()) {
      found.push_back(child);
    } else {
      allBelow(tree, child, rest, found);
    }
  }
}

}  // namespace awizo::libxml2
