#pragma once

#include <string>
#include <string_view>

#include "adapters/libxml2/handles.h"

namespace awizo::libxml2 {

/// The qualified name of an element or attribute, the target of an instruction, "#text",
/// "#cdata-section", "#comment", "#document".
std::string nameOf(const xmlNode* node);

/// The text without XML's white space at both ends.
std::string_view trimmed(std::string_view text);

/// The text of the node and all texts below it in one, outer white space cut.
std::string trimmedText(const xmlNode* node);

/// Puts one text in the place of all that is below the node; of nothing if it is empty. Error 5 for
/// a text with a character that XML can't hold.
void replaceText(xmlNode* node, std::string_view text);

}  // namespace awizo::libxml2
