#pragma once

#include <string_view>

namespace awizo::libxml2 {

// What can be told of an XPath expression by its text alone. The views point into that text.

/// A path that has plain child steps only, each by a name in the letters A to Z.
struct PlainPath {
  std::string_view names;  ///< "Line/Line-Item/EAN"; empty when the path has other steps
  bool fromDocument = false;
};

PlainPath plainPath(std::string_view path);

}  // namespace awizo::libxml2
