#pragma once

#include <string>

#include "adapters/libxml2/declaration.h"
#include "adapters/libxml2/handles.h"

namespace awizo::libxml2 {

/// A node below the document as UTF-8 text, with nothing added.
std::string nodeText(xmlNode* node);
/// A whole document as UTF-8 text; a declaration that names an encoding then names UTF-8.
std::string documentText(xmlDoc* document, const Declaration& declaration);
/// A whole document as the bytes of a file, in the encoding that its declaration names.
std::string documentBytes(xmlDoc* document, const Declaration& declaration);

}  // namespace awizo::libxml2
