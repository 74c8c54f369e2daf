#pragma once

#include "adapters/libxml2/handles.h"

namespace awizo::libxml2 {

/// Makes a node that stands nowhere the last child. It stays the same node, also beside a text.
void linkLast(xmlNode* parent, xmlNode* child);

/// Whether `child` can become a child of `parent`: not its own ancestor, and no second document
/// element.
bool mayAppend(const xmlNode* parent, const xmlNode* child);

/// Takes the node out of where it stands, another document included, and puts it behind the last
/// child. It stays the same node, also beside a text.
void moveBehind(xmlNode* parent, xmlNode* child);

/// Makes an element of a document its only content; all the rest is freed.
void makeRoot(xmlNode* element);

}  // namespace awizo::libxml2
