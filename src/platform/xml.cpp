#include "platform/xml.h"

namespace awizo {
namespace {

XmlDocument& documentOf(const XmlNode& node) {
  if (!node) throw errors::objectNotSet();
  return *node.document();
}

}  // namespace

std::string XmlNode::name() const { return documentOf(*this).nameOf(handle_); }
bool XmlNode::isElement(std::string_view name) const {
  return documentOf(*this).isElementNamed(handle_, name);
}
std::int64_t XmlNode::line() const { return documentOf(*this).lineOf(handle_); }
std::string XmlNode::text() const { return documentOf(*this).textOf(handle_); }
void XmlNode::setText(std::string_view text) const { documentOf(*this).setTextOf(handle_, text); }
std::string XmlNode::xml() const { return documentOf(*this).xmlOf(handle_); }

std::vector<XmlNode> XmlNode::children() const {
  std::vector<XmlNode> found;
  for (XmlNode child = firstChild(); child; child = child.nextSibling()) found.push_back(child);
  return found;
}

XmlNode XmlNode::firstChild() const {
  XmlDocument& document = documentOf(*this);
  return {document, document.firstChildOf(handle_)};
}

XmlNode XmlNode::nextSibling() const {
  XmlDocument& document = documentOf(*this);
  return {document, document.nextSiblingOf(handle_)};
}

XmlNode XmlNode::selectSingle(std::string_view path) const {
  XmlDocument& document = documentOf(*this);
  return {document, document.selectSingleOf(handle_, path)};
}

std::vector<XmlNode> XmlNode::selectAll(std::string_view path) const {
  XmlDocument& document = documentOf(*this);
  std::vector<XmlNode> found;
  for (void* handle : document.selectAllOf(handle_, path)) found.emplace_back(document, handle);
  return found;
}

void XmlNode::append(const XmlNode& child) const {
  XmlDocument& document = documentOf(*this);
  if (!child) throw errors::invalidProcedureCall();
  document.appendTo(handle_, child);
}

}  // namespace awizo
