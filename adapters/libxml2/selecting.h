#pragma once

#include <string_view>
#include <vector>

#include "adapters/libxml2/handles.h"

namespace awizo::libxml2 {

/// Whether it is an element of this name, in no namespace.
inline bool isElementNamed(const xmlNode* node, std::string_view name) {
  if (node->type != XML_ELEMENT_NODE) return false;
  const xmlChar* own = node->name;
  for (const char letter : name) {
    if (*own == '\0' || *own != static_cast<xmlChar>(letter)) return false;
    ++own;
  }
  return *own == '\0' && !node->ns;
}

/// XPath 1.0 on one document. Paths of plain child steps ("Line/Line-Item/EAN", "/Root/A"), also
/// with one comparison to a number ("/Root/A[B=5]/C"), are walked by name: that selects the same
/// nodes as the full evaluation at a fraction of its cost. Also, the library accepts numbers with
/// exponents, which XPath 1.0 doesn't have: in an expression they are refused, and the text of a
/// node that is compared here is no number. In other expressions ("/Root/A[B=2+3]") the library
/// still accepts it.
class Selecting {
 public:
  // Both return nodes in document order. A path that is invalid, or by its nature selects no nodes,
  // raises the error of an invalid path.

  /// The first node that the path selects from `start`, or none.
  xmlNode* first(xmlNode* start, std::string_view path);
  std::vector<xmlNode*> all(xmlNode* start, std::string_view path);
  /// To be called before the document is exchanged for another.
  void forget() { context_.reset(); }

 private:
  std::vector<xmlNode*> evaluate(xmlNode* start, std::string_view path);

  Owned<xmlXPathContext> context_;
};

}  // namespace awizo::libxml2
