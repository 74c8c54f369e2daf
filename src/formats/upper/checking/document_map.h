#pragma once

#include <set>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "formats/upper/checking/finding.h"
#include "platform/xml.h"

namespace awizo {

/// Where each element of a document is. A document can have millions, so a place holds little.
class DocumentMap {
 public:
  struct Place {
    XmlNode node;
    const std::string& kind;  ///< "Document-Order/Order-Lines/Line"
    std::size_t parent;       ///< number of its place; its own for the document element
    int ofName;               ///< which of those of its name, from 1; 0 where it is the only one
  };

  explicit DocumentMap(XmlDocument& document);
  DocumentMap(const DocumentMap&) = delete;
  DocumentMap& operator=(const DocumentMap&) = delete;

  /// In document order.
  const std::vector<Place>& places() const { return places_; }
  /// The place of an element, else that of the document element.
  const Place& placeOf(const XmlNode& node) const;

  /// Number of that place.
  std::size_t numberOf(const XmlNode& node) const;

  /// "Order-Lines/Line[3]": below the document element, whose own path is its name.
  std::string pathOf(const XmlNode& node) const;
  Finding finding(const XmlNode& node, std::string text) const;

 private:
  void add(const XmlNode& element, const std::string& kind, std::size_t parent, int ofName);

  std::set<std::string> kinds_;
  std::vector<Place> places_;
  std::unordered_map<const void*, std::size_t> numbers_;
};

/// An absolute path as findings show it: without the document element.
std::string belowRoot(std::string_view path);

}  // namespace awizo
