#pragma once

#include <string>
#include <string_view>

#include "formats/line_source.h"
#include "platform/xml.h"
#include "service/transport.h"

namespace awizo {

inline std::string orderValue(const XmlNode& node, std::string_view path, Missing missing) {
  return GetNodeValue(node, path, missing == Missing::blank);
}

/// The node if it is an element `Line`, else none, from which every value reads as missing: a child
/// of an order's lines may be a comment or an element of another name.
inline XmlNode lineElement(const XmlNode& child) {
  return child.isElement("Line") ? child : XmlNode();
}

}  // namespace awizo
