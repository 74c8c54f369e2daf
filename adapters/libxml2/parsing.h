#pragma once

#include <cstddef>
#include <string_view>

#include "adapters/libxml2/handles.h"

namespace awizo::libxml2 {

// What both ways of loading share: running libxml2's parser within bounds. It reports what it
// meets to functions that get the parser's context; the context's `_private` points to the load's
// own data, which begins with a Load.

struct Load {
  std::size_t nodes = 0;
  bool refused = false;
};

inline xmlParserCtxt* contextOf(void* context) { return static_cast<xmlParserCtxt*>(context); }

inline Load& loadOf(void* context) { return *static_cast<Load*>(contextOf(context)->_private); }

/// Ends the parsing at once.
void stop(void* context);
/// Ends the parsing since the document is one that nobody should load.
void refuse(void* context);
/// Refuses a document that has more nodes than any real one.
void countNodes(void* context, std::size_t more);

Owned<xmlParserCtxt> newContext(Load& load);
/// The document that libxml2 makes of the bytes; none for a load that failed or was refused.
Owned<xmlDoc> run(xmlParserCtxt& context, std::string_view bytes, int options);

}  // namespace awizo::libxml2
