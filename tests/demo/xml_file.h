#pragma once

#include <memory>
#include <string>
#include <vector>

struct _xmlDoc;

namespace awizo::demo {

/// An XML document in a test: the texts at a path.
class XmlFile {
 public:
  // A file named from the root of the project. Raises std::runtime_error if it can't be parsed.
  static XmlFile read(const std::string& name);
  static XmlFile parse(const std::string& text);

  /// The texts of all nodes at an XPath, in document order. Raises std::invalid_argument if the
  /// path isn't one.
  std::vector<std::string> texts(const std::string& path) const;
  // The only text at an XPath; "" for none or several.
  std::string text(const std::string& path) const;
  std::size_t count(const std::string& path) const { return texts(path).size(); }

 private:
  explicit XmlFile(_xmlDoc* document);
  std::shared_ptr<_xmlDoc> document_;
};

}  // namespace awizo::demo
