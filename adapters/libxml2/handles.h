#pragma once

#include <libxml/parser.h>
#include <libxml/tree.h>
#include <libxml/xpath.h>

#include <cstdint>
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

/// Asks the processor for what is likely to be walked soon. A parsed document lies in memory in
/// document order, and a walk over a large one waits for memory above all.
inline void fetchFollowing(const xmlNode* node) {
  constexpr std::uintptr_t ahead = 8192;
  constexpr std::uintptr_t reach = 256;
  constexpr std::uintptr_t cacheLine = 64;
  const std::uintptr_t start = reinterpret_cast<std::uintptr_t>(node) + ahead;
  for (std::uintptr_t at = start; at < start + reach; at += cacheLine) {
    __builtin_prefetch(reinterpret_cast<const void*>(at));
  }
}

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
