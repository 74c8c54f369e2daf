#include "adapters/libxml2/moving.h"

#include "platform/run_time_error.h"

namespace awizo::libxml2 {
namespace {

/// The old document may hold another name for a node, which means nothing to the new one.
void forgetHandles(xmlNode* top) {
  top->_private = nullptr;
  if (top->type != XML_ELEMENT_NODE) return;
  for (xmlNode* child = top->children; child; child = child->next) forgetHandles(child);
}

/// Whether names below may hang on a namespace that an element above declares.
bool inheritsNamespaces(const xmlNode* node) {
  for (const xmlNode* above = node->parent; above; above = above->parent) {
    if (above->type == XML_ELEMENT_NODE && above->nsDef) return true;
  }
  return false;
}

}  // namespace

void linkLast(xmlNode* parent, xmlNode* child) {
  child->parent = parent;
  child->prev = parent->last;
  child->next = nullptr;
  (parent->last ? parent->last->next : parent->children) = child;
  parent->last = child;
}

bool mayAppend(const xmlNode* parent, const xmlNode* child) {
  switch (child->type) {
    case XML_ELEMENT_NODE:
    case XML_COMMENT_NODE:
    case XML_PI_NODE:
      break;
    case XML_TEXT_NODE:
    case XML_CDATA_SECTION_NODE:
      if (parent->type == XML_DOCUMENT_NODE) return false;
      break;
    default:
      return false;
  }
  if (parent->type == XML_DOCUMENT_NODE) {
    const xmlNode* root = xmlDocGetRootElement(parent->doc);
    return child->type != XML_ELEMENT_NODE || !root || root == child;
  }
  if (parent->type != XML_ELEMENT_NODE) return false;
  for (const xmlNode* above = parent; above; above = above->parent) {
    if (above == child) return false;
  }
  return true;
}

void moveBehind(xmlNode* parent, xmlNode* child) {
  const bool reconcile = inheritsNamespaces(child);
  xmlUnlinkNode(child);
  if (child->doc != parent->doc) {
    forgetHandles(child);
    // Names may lie in the old document's dictionary, which dies with it.
    if (xmlDOMWrapAdoptNode(nullptr, child->doc, child, parent->doc, parent, 0) != 0) {
      throw errors::outOfMemory();
    }
  }
  linkLast(parent, child);
  if (reconcile && child->type == XML_ELEMENT_NODE) xmlReconciliateNs(child->doc, child);
}

void makeRoot(xmlNode* element) {
  xmlDoc* const document = element->doc;
  const bool reconcile = inheritsNamespaces(element);
  xmlUnlinkNode(element);
  xmlNode* rest = document->children;
  if (reconcile) {
    // What the names hang on must still be there while it is copied.
    linkLast(reinterpret_cast<xmlNode*>(document), element);
    xmlReconciliateNs(document, element);
    xmlUnlinkNode(element);
  }
  while (rest) {
    xmlNode* const following = rest->next;
    xmlUnlinkNode(rest);
    if (rest->type == XML_DTD_NODE) {
      xmlFreeDtd(reinterpret_cast<xmlDtd*>(rest));
    } else {
      xmlFreeNode(rest);
    }
    rest = following;
  }
  linkLast(reinterpret_cast<xmlNode*>(document), element);
}

}  // namespace awizo::libxml2
