#include "adapters/libxml2/document.h"

#include <utility>

#include "adapters/libxml2/moving.h"
#include "adapters/libxml2/path_shapes.h"
#include "adapters/libxml2/text.h"
#include "adapters/libxml2/walking.h"

namespace awizo::libxml2 {
namespace {

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

Document::Document() { take({}); }

Document::~Document() { freeLoose(); }

bool Document::loadText(std::string_view text) { return load(text, Decoding::utf8); }

bool Document::loadBytes(std::string_view bytes) { return load(bytes, Decoding::byDeclaration); }

bool Document::load(std::string_view bytes, Decoding decoding) {
  // The old content is freed first, so that two documents are never in memory together.
  take({});
  take(parse(bytes, decoding));
  return isLoaded_;
}

void Document::take(Parsed parsed) {
  isLoaded_ = parsed.document != nullptr;
  if (!isLoaded_) parsed.document.reset(xmlNewDoc(bytesOf("1.0")));
  if (!parsed.document) throw errors::outOfMemory();
  selecting_.forget();
  freeLoose();
  content_ = Content(std::move(parsed.document), std::move(parsed.flat));
  content_.bareDocument()->_private = this;
  declaration_ = std::move(parsed.declaration);
  failedAtLine_ = parsed.failedAtLine;
}

void Document::freeLoose() {
  for (xmlNode* node : loose_) xmlFreeNode(node);
  loose_.clear();
}

std::string Document::fileBytes() const { return documentBytes(content_.document(), declaration_); }

XmlNode Document::node() { return {*this, content_.bareDocument()}; }

XmlNode Document::root() {
  if (FlatTree* flat = content_.flat()) return {*this, content_.handleOf(flat->root())};
  return {*this, content_.handleOf(xmlDocGetRootElement(content_.document()))};
}

XmlNode Document::createElement(std::string_view name) {
  const std::string text(name);
  // A name with a prefix would need its namespace, which nobody can declare here.
  if (name.find('\0') != name.npos || xmlValidateNCName(bytesOf(text.c_str()), 0) != 0) {
    throw errors::invalidProcedureCall();
  }
  xmlNode* element = xmlNewDocNode(content_.document(), nullptr, bytesOf(text.c_str()), nullptr);
  if (!element) throw errors::outOfMemory();
  loose_.insert(element);
  return {*this, element};
}

void Document::keepOnly(const XmlNode& element) {
  if (!element) throw errors::objectNotSet();
  // A node that was appended here is still known by the document it came from.
  auto* const from = dynamic_cast<Document*>(element.document());
  if (!from) throw errors::invalidProcedureCall();
  if (FlatTree* flat = from == this ? content_.flat() : nullptr;
      flat && flat->holds(element.handle())) {
    const FlatNode* kept = content_.flatNodeOf(element.handle());
    if (!kept->name) throw errors::invalidProcedureCall();
    flat->keepOnly(kept);
  } else {
    keepOnlyNode(from->content_.nodeOf(element.handle()));
  }
  content_.bareDocument()->standalone = -1;
  declaration_ = {};
}

void Document::keepOnlyNode(xmlNode* kept) {
  if (kept->type != XML_ELEMENT_NODE || kept->doc != content_.document()) {
    throw errors::invalidProcedureCall();
  }
  selecting_.forget();
  loose_.erase(kept);
  makeRoot(kept);
  freeLoose();
}

std::string Document::nameOf(void* node) const {
  if (const FlatTree* flat = content_.flat()) return flat->nameOf(content_.flatNodeOf(node));
  return libxml2::nameOf(content_.nodeOf(node));
}

bool Document::isElementNamed(void* node, std::string_view name) const {
  if (const FlatTree* flat = content_.flat()) {
    return flat->isElementNamed(content_.flatNodeOf(node), name);
  }
  return libxml2::isElementNamed(content_.nodeOf(node), name);
}

std::int64_t Document::lineOf(void* node) const {
  if (content_.flat()) return content_.flatNodeOf(node)->line;
  const xmlNode* asked = content_.nodeOf(node);
  return asked->type == XML_DOCUMENT_NODE ? 0 : asked->line;
}

std::string Document::textOf(void* node) const {
  if (const FlatTree* flat = content_.flat()) {
    return std::string(flat->trimmedText(content_.flatNodeOf(node)));
  }
  return trimmedText(content_.nodeOf(node));
}

void Document::setTextOf(void* node, std::string_view text) {
  replaceText(content_.nodeOf(node), text);
}

std::string Document::xmlOf(void* node) const {
  xmlNode* const written = content_.nodeOf(node);
  if (written->type == XML_DOCUMENT_NODE) return documentText(content_.document(), declaration_);
  return nodeText(written);
}

void* Document::firstChildOf(void* node) const {
  if (const FlatTree* flat = content_.flat()) {
    return content_.handleOf(flat->firstChild(content_.flatNodeOf(node)));
  }
  const xmlNode* parent = content_.nodeOf(node);
  const bool hasChildren = parent->type == XML_ELEMENT_NODE || parent->type == XML_DOCUMENT_NODE;
  return hasChildren ? content_.handleOf(firstShown(parent->children)) : nullptr;
}

void* Document::nextSiblingOf(void* node) const {
  if (const FlatTree* flat = content_.flat()) {
    return content_.handleOf(flat->next(content_.flatNodeOf(node)));
  }
  const xmlNode* before = content_.nodeOf(node);
  fetchFollowing(before);
  return isShown(before) ? content_.handleOf(firstShown(before->next)) : nullptr;
}

void* Document::selectSingleOf(void* node, std::string_view path) const {
  if (const FlatTree* flat = content_.flat()) {
    if (const std::optional<WalkedPath> walked = walkedPath(path)) {
      return content_.handleOf(firstOnPath(*flat, walkStart(*flat, node, *walked), *walked));
    }
  }
  return content_.handleOf(selecting_.first(content_.nodeOf(node), path));
}

std::vector<void*> Document::selectAllOf(void* node, std::string_view path) const {
  std::vector<void*> handles;
  if (const FlatTree* flat = content_.flat()) {
    if (const std::optional<WalkedPath> walked = walkedPath(path)) {
      for (const FlatNode* one : allOnPath(*flat, walkStart(*flat, node, *walked), *walked)) {
        handles.push_back(content_.handleOf(one));
      }
      return handles;
    }
  }
  for (xmlNode* one : selecting_.all(content_.nodeOf(node), path)) {
    handles.push_back(content_.handleOf(one));
  }
  return handles;
}

const FlatNode* Document::walkStart(const FlatTree& flat, void* node,
                                    const WalkedPath& path) const {
  return path.fromDocument ? flat.document() : content_.flatNodeOf(node);
}

void Document::appendTo(void* parent, const XmlNode& child) {
  auto* const from = dynamic_cast<Document*>(child.document());
  if (!from) throw errors::invalidProcedureCall();
  xmlNode* const target = content_.nodeOf(parent);
  xmlNode* const moved = from->content_.nodeOf(child.handle());
  if (!mayAppend(target, moved)) throw errors::invalidProcedureCall();
  static_cast<Document*>(moved->doc->_private)->loose_.erase(moved);
  moveBehind(target, moved);
}

}  // namespace awizo::libxml2
