#include "adapters/libxml2/loading.h"

#include <libxml/SAX2.h>
#include <libxml/encoding.h>
#include <libxml/parserInternals.h>

#include <limits>
#include <string>
#include <utility>

#include "platform/run_time_error.h"

namespace awizo::libxml2 {
namespace {

/// All different names of a document together. libxml2 compares names of attributes and of
/// declarations each with each, so that many of them would hold it up for hours; a document of
/// ours has some hundred.
constexpr std::size_t mostBytesOfNames = 256 * 1024;

/// Elements, attributes and other nodes of a document together. A catalogue at the system's limits
/// has some 900,000; without a limit, 100 MB of nothing but tags would take more than 3 GB.
constexpr std::size_t mostNodes = 5'000'000;

/// What one load knows beside libxml2's parser context; the context's `_private` points to it.
struct Loading {
  /// libxml2 doesn't count what parameter entities cost that are made of one another.
  static constexpr int mostParameterEntities = 1000;
  /// Blanks at the start of a text, held back until it is known whether more text follows. Blanks
  /// that turn out to stand between two nodes are thus never made into a node.
  std::string heldBlanks;
  /// Where that can't be known, blanks become nodes and the finished tree is swept as a whole.
  bool sweeps = false;
  int parameterEntities = 0;
  std::size_t nodes = 0;
  bool refused = false;
};

xmlParserCtxt* contextOf(void* context) { return static_cast<xmlParserCtxt*>(context); }

Loading& loadingOf(void* context) { return *static_cast<Loading*>(contextOf(context)->_private); }

void refuse(void* context) {
  loadingOf(context).refused = true;
  contextOf(context)->wellFormed = 0;
  contextOf(context)->disableSAX = 1;
  contextOf(context)->instate = XML_PARSER_EOF;
}

void countNodes(void* context, std::size_t more) {
  Loading& loading = loadingOf(context);
  loading.nodes += more;
  if (loading.nodes > mostNodes) refuse(context);
}

void writeHeldBlanks(void* context) {
  std::string& held = loadingOf(context).heldBlanks;
  if (held.empty()) return;
  xmlSAX2Characters(context, bytesOf(held.data()), static_cast<int>(held.size()));
  held.clear();
}

void onCharacters(void* context, const xmlChar* text, int length) {
  Loading& loading = loadingOf(context);
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
  // Without the blanks between them the two sections would become one.
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
  if (++loadingOf(context).parameterEntities > Loading::mostParameterEntities) {
    refuse(context);
    return nullptr;
  }
  return admit(context, xmlSAX2GetParameterEntity(context, name));
}

xmlParserInput* onResolveEntity(void*, const xmlChar*, const xmlChar*) { return nullptr; }

/// The first error decides; without this, bytes of nonsense would cost an error message each.
void onError(void*, xmlError* error) {
  if (error->domain != XML_FROM_PARSER || error->level != XML_ERR_FATAL || !error->ctxt) return;
  contextOf(error->ctxt)->instate = XML_PARSER_EOF;
}

void hook(xmlSAXHandler& events) {
  events.serror = onError;
  events.characters = onCharacters;
  events.ignorableWhitespace = onCharacters;
  events.startElementNs = onStartElement;
  events.endElementNs = onEndElement;
  events.comment = onComment;
  events.processingInstruction = onInstruction;
  events.cdataBlock = onCData;
  events.getEntity = onGetEntity;
  events.getParameterEntity = onGetParameterEntity;
  events.resolveEntity = onResolveEntity;
  events.externalSubset = nullptr;
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

Parsed parseWellFormed(std::string_view bytes, int options) {
  const Owned<xmlParserCtxt> context(xmlNewParserCtxt());
  if (!context) throw errors::outOfMemory();
  xmlDictSetLimit(context->dict, mostBytesOfNames);
  Loading loading;
  context->_private = &loading;
  hook(*context->sax);
  Owned<xmlDoc> document(xmlCtxtReadMemory(
      context.get(), bytes.data(), static_cast<int>(bytes.size()), nullptr, nullptr, options));
  if (!document || loading.refused || !context->nsWellFormed) {
    return {nullptr, {}, context->lastError.line};
  }
  // What is put into the document afterwards is our own.
  xmlDictSetLimit(document->dict, 0);
  xmlNode* root = xmlDocGetRootElement(document.get());
  if (root && loading.sweeps) dropBlanks(root);
  return {root ? std::move(document) : nullptr, {}, 0};
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
  Parsed parsed = parseWellFormed(bytes, options);
  if (parsed.document) parsed.declaration = declarationOf(bytes);
  return parsed;
}

}  // namespace awizo::libxml2
