#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/run_time_error.h"

namespace awizo {

class XmlDocument;

/// One node of a document, or an empty one. Cheap to copy; valid while its document lives and it is
/// part of it.
class XmlNode {
 public:
  XmlNode() = default;
  /// For the maker of the document: `handle` identifies the node to that maker.
  XmlNode(XmlDocument& document, void* handle) : document_(&document), handle_(handle) {}

  explicit operator bool() const { return handle_ != nullptr; }
  bool operator==(const XmlNode&) const = default;
  XmlDocument* document() const { return document_; }
  void* handle() const { return handle_; }

  // All of these raise error 91 on an empty node.

  /// Name of an element, "#text", "#comment", ... of others.
  std::string name() const;
  /// Whether it is an element of this name, in no namespace: what a name means in a path.
  bool isElement(std::string_view name) const;
  /// The line of the loaded text on which an element's start tag ends, from 1; 65535 for all later
  /// lines, 0 if unknown.
  std::int64_t line() const;
  /// Text of the node and all below it, outer white space cut, inner kept.
  std::string text() const;
  /// Replaces all that is below by this text; it is escaped when written. A character that XML
  /// can't hold, such as a control character, is error 5.
  void setText(std::string_view text) const;
  /// The node as XML text (UTF-8, no declaration of its own for an element).
  std::string xml() const;
  /// Elements, texts, comments and processing instructions, in document order.
  std::vector<XmlNode> children() const;
  XmlNode firstChild() const;
  XmlNode nextSibling() const;
  /// The first node, in document order, that the XPath 1.0 path selects from here; none if
  /// nothing does. An invalid path raises error -2147467259.
  XmlNode selectSingle(std::string_view path) const;
  std::vector<XmlNode> selectAll(std::string_view path) const;
  /// Puts `child` after the last child; it is taken from where it was, another document included.
  /// Appending an empty node raises error 5.
  void append(const XmlNode& child) const;

 private:
  XmlDocument* document_ = nullptr;
  void* handle_ = nullptr;
};

/// A document in memory, possibly empty. White space between elements is dropped on loading.
class XmlDocument {
 public:
  virtual ~XmlDocument() = default;

  // A load that fails empties the document and returns false; it raises nothing.

  /// From text that is UTF-8 whatever its declaration says.
  virtual bool loadText(std::string_view text) = 0;
  /// From a file's bytes, by their byte order mark or declaration, else UTF-8.
  virtual bool loadBytes(std::string_view bytes) = 0;

  /// The line of the text, from 1, at which the last load failed; 0 where it didn't, or where that
  /// isn't known.
  virtual std::int64_t failedAtLine() const { return 0; }

  /// The bytes of a file: in the declared encoding, or UTF-8 without adding a declaration.
  virtual std::string fileBytes() const = 0;

  /// The document node, from which absolute paths select; it exists in an empty document too.
  virtual XmlNode node() = 0;
  /// The document element, or none.
  virtual XmlNode root() = 0;
  virtual XmlNode createElement(std::string_view name) = 0;
  /// Makes `element`, a node of this document, the document element, and drops all the rest.
  virtual void keepOnly(const XmlNode& element) = 0;

  // What a node of this document does, by its handle.
  virtual std::string nameOf(void* node) const = 0;
  virtual bool isElementNamed(void* node, std::string_view name) const = 0;
  virtual std::int64_t lineOf(void*) const { return 0; }
  virtual std::string textOf(void* node) const = 0;
  virtual void setTextOf(void* node, std::string_view text) = 0;
  virtual std::string xmlOf(void* node) const = 0;
  virtual void* firstChildOf(void* node) const = 0;
  virtual void* nextSiblingOf(void* node) const = 0;
  virtual void* selectSingleOf(void* node, std::string_view path) const = 0;
  virtual std::vector<void*> selectAllOf(void* node, std::string_view path) const = 0;
  virtual void appendTo(void* parent, const XmlNode& child) = 0;
};

/// Makes documents.
class Xml {
 public:
  virtual ~Xml() = default;
  virtual std::unique_ptr<XmlDocument> createDocument() const = 0;
};

}  // namespace awizo
