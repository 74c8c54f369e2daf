#include "adapters/libxml2/parsing.h"

#include <algorithm>

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

/// Only what the document itself declares is read; nothing is fetched.
xmlParserInput* onResolveEntity(void*, const xmlChar*, const xmlChar*) { return nullptr; }

/// The first error decides; without this, bytes of nonsense would cost an error message each.
void onError(void*, xmlError* error) {
  if (error->domain != XML_FROM_PARSER || error->level != XML_ERR_FATAL || !error->ctxt) return;
  contextOf(error->ctxt)->instate = XML_PARSER_EOF;
}

int handOver(void* source, char* target, int most) {
  auto& rest = *static_cast<std::string_view*>(source);
  const std::size_t count = std::min(rest.size(), static_cast<std::size_t>(most));
  rest.copy(target, count);
  rest.remove_prefix(count);
  return static_cast<int>(count);
}

}  // namespace

void stop(void* context) {
  contextOf(context)->wellFormed = 0;
  contextOf(context)->disableSAX = 1;
  contextOf(context)->instate = XML_PARSER_EOF;
}

void refuse(void* context) {
  loadOf(context).refused = true;
  stop(context);
}

void countNodes(void* context, std::size_t more) {
  Load& load = loadOf(context);
  load.nodes += more;
  if (load.nodes > mostNodes) refuse(context);
}

Owned<xmlParserCtxt> newContext(Load& load) {
  Owned<xmlParserCtxt> context(xmlNewParserCtxt());
  if (!context) throw errors::outOfMemory();
  xmlDictSetLimit(context->dict, mostBytesOfNames);
  context->_private = &load;
  context->sax->serror = onError;
  context->sax->resolveEntity = onResolveEntity;
  context->sax->externalSubset = nullptr;
  return context;
}

Owned<xmlDoc> run(xmlParserCtxt& context, std::string_view bytes, int options) {
  // From memory libxml2 would make a copy of all the bytes first.
  std::string_view rest = bytes;
  Owned<xmlDoc> document(
      xmlCtxtReadIO(&context, handOver, nullptr, &rest, nullptr, nullptr, options));
  if (!document || loadOf(&context).refused || !context.nsWellFormed) return nullptr;
  // What is put into the document afterwards is our own.
  xmlDictSetLimit(document->dict, 0);
  return document;
}

}  // namespace awizo::libxml2
