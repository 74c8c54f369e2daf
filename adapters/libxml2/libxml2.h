#pragma once

#include "platform/xml.h"

namespace awizo {

/// XML documents kept by libxml2. Loading touches neither network nor files: external entities
/// and document type definitions are never fetched, and a reference to one fails the load.
class Libxml2 final : public Xml {
 public:
  Libxml2();
  std::unique_ptr<XmlDocument> createDocument() const override;
};

}  // namespace awizo
