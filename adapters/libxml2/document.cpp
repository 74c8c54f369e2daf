#include "adapters/libxml2/document.h"

#include <utility>

#include "adapters/libxml2/moving.h"
#include "adapters/libxml2/text.h"

namespace awizo::libxml2 {
namespace {

xmlNode* nodeOf(void* handle) { return static_cast<xmlNode*>(handle); }

bool isShown(const xmlNode* node) {
  switch (node->type) {
    case XML_ELEMENT_NODE:
    case XML_TEXT_NODE:
    case XML_CDATA_SECTION_NODE:
    case XML_COMMENT_NODE:
    case XML_PI_NODE:
      return true;
    default:
      return false;
  }
}

xmlNode* firstShown(xmlNode* node) {
  while (node && !isShown(node)) node = node->next;
  return node;
}

}  // namespace

Document::Document() { take(nullptr, {}); }

Document::~Document() { freeLoose(); }

bool Document::loadText(std::string_view text) { return load(text, Decoding::utf8); }

bool Document::loadBytes(std::string_view bytes) { return load(bytes, Decoding::byDeclaration); }

bool Document::load(std::string_view bytes, Decoding decoding) {
  // The old content goes first, so that two documents never stand in memory together.
  take(nullptr, {});
  Parsed parsed = parse(bytes, decoding);
  failedAtLine_ = parsed.failedAtLine;
  if (!parsed.document) return false;
  take(std::move(parsed.document), std::move(parsed.declaration));
  return true;
}

void Document::take(Owned<xmlDoc> document, Declaration declaration) {
  if (!document) document.reset(xmlNewDoc(bytesOf("1.0")));
  if (!document) throw errors::outOfMemory();
  selecting_.forget();
  freeLoose();
  document_ = std::move(document);
  document_->_private = this;
  declaration_ = std::move(declaration);
}

void Document::freeLoose() {
  for (xmlNode* node : loose_) xmlFreeNode(node);
  loose_.clear();
}

std::string Document::fileBytes() const { return documentBytes(document_.get(), declaration_); }

XmlNode Document::node() { return {*this, document_.get()}; }

XmlNode Document::root() { return {*this, xmlDocGetRootElement(document_.get())}; }

XmlNode Document::createElement(std::string_view name) {
  const std::string text(name);
  // A name with a prefix would need its namespace, which nobody can declare here.
  if (name.find('\0') != name.npos || xmlValidateNCName(bytesOf(text.c_str()), 0) != 0) {
    throw errors::invalidProcedureCall();
  }
  xmlNode* element = xmlNewDocNode(document_.get(), nullptr, bytesOf(text.c_str()), nullptr);
  if (!element) throw errors::outOfMemory();
  loose_.insert(element);
  return {*this, element};
}

void Document::keepOnly(const XmlNode& element) {
  if (!element) throw errors::objectNotSet();
  xmlNode* const kept = nodeOf(element.handle());
  if (kept->type != XML_ELEMENT_NODE || kept->doc != document_.get()) {
    throw errors::invalidProcedureCall();
  }
  selecting_.forget();
  loose_.erase(kept);
  makeRoot(kept);
  freeLoose();
  document_->standalone = -1;
  declaration_ = {};
}

std::string Document::nameOf(void* node) const { return libxml2::nameOf(nodeOf(node)); }

bool Document::isElementNamed(void* node, std::string_view name) const {
  return libxml2::isElementNamed(nodeOf(node), name);
}

std::int64_t Document::lineOf(void* node) const { return nodeOf(node)->line; }

std::string Document::textOf(void* node) const { return trimmedText(nodeOf(node)); }

void Document::setTextOf(void* node, std::string_view text) { replaceText(nodeOf(node), text); }

std::string Document::xmlOf(void* node) const {
  if (nodeOf(node)->type == XML_DOCUMENT_NODE) return documentText(document_.get(), declaration_);
  return nodeText(nodeOf(node));
}

void* Document::firstChildOf(void* node) const {
  const xmlNode* parent = nodeOf(node);
  const bool hasChildren = parent->type == XML_ELEMENT_NODE || parent->type == XML_DOCUMENT_NODE;
  return hasChildren ? firstShown(parent->children) : nullptr;
}

void* Document::nextSiblingOf(void* node) const {
  fetchFollowing(nodeOf(node));
  return isShown(nodeOf(node)) ? firstShown(nodeOf(node)->next) : nullptr;
}

void* Document::selectSingleOf(void* node, std::string_view path) const {
  return selecting_.first(nodeOf(node), path);
}

std::vector<void*> Document::selectAllOf(void* node, std::string_view path) const {
  const std::vector<xmlNode*> found = selecting_.all(nodeOf(node), path);
  return {found.begin(), found.end()};
}

void Document::appendTo(void* parent, const XmlNode& child) {
  xmlNode* const moved = nodeOf(child.handle());
  if (!dynamic_cast<Document*>(child.document()) || !mayAppend(nodeOf(parent), moved)) {
    throw errors::invalidProcedureCall();
  }
  static_cast<Document*>(moved->doc->_private)->loose_.erase(moved);
  moveBehind(nodeOf(parent), moved);
}

}  // namespace awizo::libxml2
