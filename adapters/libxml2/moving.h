#pragma once

#include "adapters/libxml2/handles.h"

namespace awizo::libxml2 {

/// Makes a node without a parent the last child. It stays the same node, also next to a text.
void linkLast(xmlNode* parent, xmlNode* child);

/// Whether `child` can become a child of `parent`: not its own ancestor, and no second document
/// element.
bool mayAppend(const xmlNode* parent, const xmlNode* child);

/// Takes the node from where it is, another document included, and puts it after the last child. It
/// stays the same node, also next to a text.
void moveBehind(xmlNode* parent, xmlNode* child);

/// Makes an element of a document its only content; all the rest is freed.
void makeRoot(xmlNode* element);

}  // namespace awizo::libxml2
