#include "adapters/libxml2/libxml2.h"

#include <libxml/parser.h>

#include "adapters/libxml2/document.h"

namespace awizo {

Libxml2::Libxml2() { xmlInitParser(); }

std::unique_ptr<XmlDocument> Libxml2::createDocument() const {
  return std::make_unique<libxml2::Document>();
}

}  // namespace awizo
