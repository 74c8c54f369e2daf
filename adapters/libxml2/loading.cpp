#include "adapters/libxml2/loading.h"

#include <libxml/SAX2.h>
#include <libxml/encoding.h>

#include <limits>
#include <optional>
#include <string>
#include <utility>

#include "adapters/libxml2/flat_loading.h"
#include "adapters/libxml2/parsing.h"

namespace awizo::libxml2 {
namespace {

struct TreeLoad : Load {
  /// libxml2 doesn't count what parameter entities cost that are made of one another.
  static constexpr int mostParameterEntities = 1000;
  /// White space at the start of a text, held back until it is known whether more text follows.
  /// White space that turns out to be between two nodes is thus never made into a node.
  std::string heldBlanks;
  /// Where that can't be known, white space becomes nodes, which are removed from the finished
  /// tree.
  bool sweeps = false;
  int parameterEntities = 0;
};

TreeLoad& loadingOf(void* context) { return static_cast<TreeLoad&>(loadOf(context)); }

void writeHeldBlanks(void* context) {
  std::string& held = loadingOf(context).heldBlanks;
  if (held.empty()) return;
  xmlSAX2Characters(context, bytesOf(held.data()), static_cast<int>(held.size()));
  held.clear();
}

void onCharacters(void* context, const xmlChar* text, int length) {
  TreeLoad& loading = loadingOf(context);
  if (!loading.sweeps && isBlank(*text)) {
    const std::string_view view(reinterpret_cast<const char*>(text),
                                static_cast<std::size_t>(length));
    const xmlNode* node = contextOf(context)->node;
    const bool startsText = !node || !node->last || node->last->type != XML_TEXT_NODE;
    if (startsText && isBlank(view)) {
      loading.heldBlanks += view;
      return;
    }
  }
  writeHeldBlanks(context);
  countNodes(context, 1);
  xmlSAX2Characters(context, text, length);
}

void onStartElement(void* context, const xmlChar* name, const xmlChar* prefix, const xmlChar* uri,
                    int namespaceCount, const xmlChar** namespaces, int attributeCount,
                    int defaultedCount, const xmlChar** attributes) {
  loadingOf(context).heldBlanks.clear();
  countNodes(context, 1 + static_cast<std::size_t>(attributeCount + namespaceCount));
  xmlSAX2StartElementNs(context, name, prefix, uri, namespaceCount, namespaces, attributeCount,
                        defaultedCount, attributes);
}

void onEndElement(void* context, const xmlChar* name, const xmlChar* prefix, const xmlChar* uri) {
  const xmlNode* node = contextOf(context)->node;
  if (node && !node->children) writeHeldBlanks(context);
  loadingOf(context).heldBlanks.clear();
  xmlSAX2EndElementNs(context, name, prefix, uri);
}

void onComment(void* context, const xmlChar* text) {
  loadingOf(context).heldBlanks.clear();
  countNodes(context, 1);
  xmlSAX2Comment(context, text);
}

void onInstruction(void* context, const xmlChar* target, const xmlChar* data) {
  loadingOf(context).heldBlanks.clear();
  countNodes(context, 1);
  xmlSAX2ProcessingInstruction(context, target, data);
}

void sweepLater(void* context) {
  writeHeldBlanks(context);
  loadingOf(context).sweeps = true;
}

void onCData(void* context, const xmlChar* text, int length) {
  const xmlNode* node = contextOf(context)->node;
  const bool parts = node && node->last && node->last->type == XML_CDATA_SECTION_NODE &&
                     !loadingOf(context).heldBlanks.empty();
  // Without the white space between them the two sections would become one.
  if (parts) sweepLater(context);
  loadingOf(context).heldBlanks.clear();
  countNodes(context, 1);
  xmlSAX2CDataBlock(context, text, length);
}

/// Only what the document itself declares may be referred to.
xmlEntity* admit(void* context, xmlEntity* entity) {
  const bool inside = entity && (entity->etype == XML_INTERNAL_GENERAL_ENTITY ||
                                 entity->etype == XML_INTERNAL_PARAMETER_ENTITY ||
                                 entity->etype == XML_INTERNAL_PREDEFINED_ENTITY);
  if (inside) return entity;
  refuse(context);
  return nullptr;
}

xmlEntity* onGetEntity(void* context, const xmlChar* name) {
  // An entity may bring in text or elements.
  sweepLater(context);
  return admit(context, xmlSAX2GetEntity(context, name));
}

xmlEntity* onGetParameterEntity(void* context, const xmlChar* name) {
  if (++loadingOf(context).parameterEntities > TreeLoad::mostParameterEntities) {
    refuse(context);
    return nullptr;
  }
  return admit(context, xmlSAX2GetParameterEntity(context, name));
}

void hook(xmlSAXHandler& events) {
  events.characters = onCharacters;
  events.ignorableWhitespace = onCharacters;
  events.startElementNs = onStartElement;
  events.endElementNs = onEndElement;
  events.comment = onComment;
  events.processingInstruction = onInstruction;
  events.cdataBlock = onCData;
  events.getEntity = onGetEntity;
  events.getParameterEntity = onGetParameterEntity;
}

/// The next node in document order below `top`; children of declarations are not entered.
xmlNode* nextBelow(xmlNode* node, const xmlNode* top) {
  if (node->type == XML_ELEMENT_NODE && node->children) return node->children;
  while (node != top && !node->next) node = node->parent;
  return node == top ? nullptr : node->next;
}

void dropBlanks(xmlNode* top) {
  for (xmlNode* node = top; node;) {
    xmlNode* const following = nextBelow(node, top);
    const bool alone = !node->prev && !node->next;
    if (node->type == XML_TEXT_NODE && !alone && isBlank(viewOf(node->content))) {
      xmlUnlinkNode(node);
      xmlFreeNode(node);
    }
    node = following;
  }
}

/// Text starting like another encoding than UTF-8 would be decoded as that.
bool looksLikeUtf8(std::string_view text) {
  if (text.size() < 4) return true;
  const auto* start = reinterpret_cast<const unsigned char*>(text.data());
  const xmlCharEncoding guess = xmlDetectCharEncoding(start, 4);
  return guess == XML_CHAR_ENCODING_NONE || guess == XML_CHAR_ENCODING_UTF8;
}

Parsed parseTree(std::string_view bytes, int options) {
  TreeLoad loading;
  const Owned<xmlParserCtxt> context = newContext(loading);
  hook(*context->sax);
  Owned<xmlDoc> document = run(*context, bytes, options);
  if (!document) return {.failedAtLine = context->lastError.line};
  xmlNode* root = xmlDocGetRootElement(document.get());
  if (root && loading.sweeps) dropBlanks(root);
  if (!root) return {};
  return {.document = std::move(document)};
}

}  // namespace

Parsed parse(std::string_view bytes, Decoding decoding) {
  if (bytes.empty() || bytes.size() > std::numeric_limits<int>::max()) return {};
  int options = XML_PARSE_NONET | XML_PARSE_NOENT | XML_PARSE_NOERROR | XML_PARSE_NOWARNING |
                XML_PARSE_COMPACT;
  if (decoding == Decoding::utf8) {
    if (!looksLikeUtf8(bytes)) return {};
    options |= XML_PARSE_IGNORE_ENC;
  }
  std::optional<Parsed> flat = parseFlat(bytes, options);
  Parsed parsed = flat ? *std::move(flat) : parseTree(bytes, options);
  if (parsed.document) parsed.declaration = declarationOf(bytes);
  return parsed;
}

}  // namespace awizo::libxml2
