#pragma once

#include <libxml/parser.h>
#include <libxml/tree.h>
#include <libxml/xpath.h>

#include <memory>
#include <string_view>

namespace awizo::libxml2 {

/// Frees what libxml2 has made, each kind by its own call.
struct Free {
  void operator()(xmlDoc* document) const { xmlFreeDoc(document); }
  void operator()(xmlNode* node) const { xmlFreeNode(node); }
  void operator()(xmlParserCtxt* context) const { xmlFreeParserCtxt(context); }
  void operator()(xmlXPathContext* context) const { xmlXPathFreeContext(context); }
  void operator()(xmlXPathCompExpr* expression) const { xmlXPathFreeCompExpr(expression); }
  void operator()(xmlXPathObject* object) const { xmlXPathFreeObject(object); }
};

template <typename Kind>
using Owned = std::unique_ptr<Kind, Free>;

inline std::string_view viewOf(const xmlChar* text) {
  return text ? std::string_view(reinterpret_cast<const char*>(text)) : std::string_view();
}

inline const xmlChar* bytesOf(const char* text) { return reinterpret_cast<const xmlChar*>(text); }

inline bool isBlank(unsigned char byte) {
  return byte == ' ' || byte == '\n' || byte == '\t' || byte == '\r';
}

inline bool isBlank(std::string_view text) {
  for (const char byte : text) {
    if (!isBlank(static_cast<unsigned char>(byte))) return false;
  }
  return true;
}

}  // namespace awizo::libxml2
