#include "adapters/libxml2/text.h"

#include <limits>

#include "platform/run_time_error.h"
#include "platform/text.h"

namespace awizo::libxml2 {
namespace {

bool isText(const xmlNode* node) {
  return node->type == XML_TEXT_NODE || node->type == XML_CDATA_SECTION_NODE;
}

std::string textBelow(const xmlNode* top) {
  std::string text;
  const xmlNode* node = top->children;
  while (node) {
    if (isText(node)) text += viewOf(node->content);
    if (node->type == XML_ELEMENT_NODE && node->children) {
      node = node->children;
      continue;
    }
    while (node != top && !node->next) node = node->parent;
    if (node == top) break;
    node = node->next;
  }
  return text;
}

bool holdsItsText(const xmlNode* node) {
  return isText(node) || node->type == XML_COMMENT_NODE || node->type == XML_PI_NODE;
}

/// libxml2 writes any character, also one that no reader takes.
bool fitsXml(std::string_view text) {
  for (const char letter : text) {
    const bool isControl = static_cast<unsigned char>(letter) < ' ';
    if (isControl && letter != '\t' && letter != '\n' && letter != '\r') return false;
  }
  return isUtf8(text) && text.find("\uFFFE") == text.npos && text.find("\uFFFF") == text.npos;
}

}  // namespace

std::string nameOf(const xmlNode* node) {
  switch (node->type) {
    case XML_TEXT_NODE:
      return "#text";
    case XML_CDATA_SECTION_NODE:
      return "#cdata-section";
    case XML_COMMENT_NODE:
      return "#comment";
    case XML_DOCUMENT_NODE:
      return "#document";
    default:
      break;
  }
  std::string name;
  const bool hasNamespace = node->type == XML_ELEMENT_NODE || node->type == XML_ATTRIBUTE_NODE;
  if (hasNamespace && node->ns && node->ns->prefix)
    name.append(viewOf(node->ns->prefix)).append(":");
  return name.append(viewOf(node->name));
}

std::string_view trimmed(std::string_view text) {
  while (!text.empty() && isBlank(static_cast<unsigned char>(text.front()))) text.remove_prefix(1);
  while (!text.empty() && isBlank(static_cast<unsigned char>(text.back()))) text.remove_suffix(1);
  return text;
}

std::string trimmedText(const xmlNode* node) {
  if (holdsItsText(node)) return std::string(trimmed(viewOf(node->content)));
  const xmlNode* only = node->children;
  if (!only) return {};
  if (!only->next && isText(only)) return std::string(trimmed(viewOf(only->content)));
  return std::string(trimmed(textBelow(node)));
}

void replaceText(xmlNode* node, std::string_view text) {
  if (text.size() > std::numeric_limits<int>::max()) throw errors::outOfMemory();
  if (!fitsXml(text)) throw errors::invalidProcedureCall();
  const auto length = static_cast<int>(text.size());
  if (holdsItsText(node)) {
    xmlNodeSetContentLen(node, bytesOf(text.data()), length);
    return;
  }
  if (node->type != XML_ELEMENT_NODE && node->type != XML_ATTRIBUTE_NODE) {
    throw errors::invalidProcedureCall();
  }
  xmlFreeNodeList(node->children);
  node->children = node->last = nullptr;
  if (text.empty()) return;
  xmlNode* only = xmlNewDocTextLen(node->doc, bytesOf(text.data()), length);
  if (!only) throw errors::outOfMemory();
  only->parent = node;
  node->children = node->last = only;
}

}  // namespace awizo::libxml2
