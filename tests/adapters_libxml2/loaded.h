#pragma once

#include <memory>
#include <string_view>
#include <vector>

#include "adapters/libxml2/libxml2.h"
#include "support/error_of.h"

namespace awizo::test {

inline std::unique_ptr<XmlDocument> loaded(std::string_view text) {
  auto document = Libxml2().createDocument();
  EXPECT_TRUE(document->loadText(text)) << text.substr(0, 200);
  return document;
}

/// The document element's XML text after a load; "failed" for a load that fails.
inline std::string loadedXml(std::string_view text) {
  const auto document = Libxml2().createDocument();
  return document->loadText(text) ? document->root().xml() : "failed";
}

inline std::vector<std::string> texts(const std::vector<XmlNode>& nodes) {
  std::vector<std::string> found;
  for (const XmlNode& node : nodes) found.push_back(node.text());
  return found;
}

}  // namespace awizo::test
