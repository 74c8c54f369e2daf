#pragma once

#include <string_view>
#include <vector>

#include "adapters/libxml2/path_shapes.h"
#include "platform/xpath_number.h"

namespace awizo::libxml2 {

// Walks along child steps, each by a name ("Line/Line-Item/EAN"), in any tree that has
// `firstChild`, `next`, `isElementNamed` and `trimmedText`. The nodes come in document order.

/// The first name of the path; `rest` is what follows it, empty after the last.
inline std::string_view firstName(std::string_view names, std::string_view& rest) {
  const std::size_t end = names.find('/');
  rest = end == names.npos ? std::string_view() : names.substr(end + 1);
  return names.substr(0, end);
}

/// The first that is accepted. A first child may lack what a later one of the same name has, so the
/// walk goes back up.
template <class Tree, class Node, class Accepts>
Node firstBelow(const Tree& tree, Node parent, std::string_view names, const Accepts& accepts) {
  std::string_view rest;
  const std::string_view name = firstName(names, rest);
  for (Node child = tree.firstChild(parent); child; child = tree.next(child)) {
    if (!tree.isElementNamed(child, name)) continue;
    if (!rest.empty()) {
      if (Node found = firstBelow(tree, child, rest, accepts)) return found;
    } else if (accepts(child)) {
      return child;
    }
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

/// Whether one of the compared values is the number. The library's own comparison would take the
/// text "1e5" for a number.
template <class Tree, class Node>
bool hasNumber(const Tree& tree, Node node, const WalkedPath& path) {
  return firstBelow(tree, node, path.compared, [&](Node value) {
    return xpathNumber(tree.trimmedText(value)) == path.number;
  });
}

/// The first node that the path selects, or none. `start`: the document's node for a path from
/// there.
template <class Tree, class Node>
Node firstOnPath(const Tree& tree, Node start, const WalkedPath& path) {
  const auto any = [](Node) { return true; };
  if (path.compared.empty()) return firstBelow(tree, start, path.names, any);
  Node found = nullptr;
  firstBelow(tree, start, path.names, [&](Node node) {
    if (!hasNumber(tree, node, path)) return false;
    found = path.rest.empty() ? node : firstBelow(tree, node, path.rest, any);
    return found != nullptr;
  });
  return found;
}

template <class Tree, class Node>
std::vector<Node> allOnPath(const Tree& tree, Node start, const WalkedPath& path) {
  std::vector<Node> nodes;
  allBelow(tree, start, path.names, nodes);
  if (path.compared.empty()) return nodes;
  std::erase_if(nodes, [&](Node node) { return !hasNumber(tree, node, path); });
  if (path.rest.empty()) return nodes;
  std::vector<Node> found;
  for (const Node node : nodes) allBelow(tree, node, path.rest, found);
  return found;
}

}  // namespace awizo::libxml2
