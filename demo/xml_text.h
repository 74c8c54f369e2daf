#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

struct _xmlDoc;

namespace awizo::demo {

/// A text that isn't well-formed XML.
struct XmlError {
  int line = 0;  ///< counted from 1; 0 if unknown
};

/// An XML document that came in, for reading single values. Nothing is loaded from elsewhere for
/// it, and libxml2's limits on depth and on the growth of entities hold.
class XmlDocument {
 public:
  // Raises XmlError if the text isn't well-formed.
  explicit XmlDocument(std::string_view text);
  ~XmlDocument();
  XmlDocument(const XmlDocument&) = delete;
  XmlDocument& operator=(const XmlDocument&) = delete;

  /// The text of the first node at `path` (XPath), outer white space cut; nothing if there is none.
  std::optional<std::string> textAt(const char* path) const;

 private:
  struct Free {
    void operator()(_xmlDoc* document) const;
  };
  std::unique_ptr<_xmlDoc, Free> document_;
};

/// `text` with the characters that mean something in XML escaped.
std::string escapedForXml(std::string_view text);

/// `text` without a byte order mark and without an XML declaration, to be put into another
/// document.
std::string_view withoutDeclaration(std::string_view text);

}  // namespace awizo::demo
