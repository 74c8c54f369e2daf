#include "adapters/libxml2/content.h"

#include <string>

namespace awizo::libxml2 {

xmlDoc* Content::document() {
  growOnce();
  return document_.get();
}

const FlatNode* Content::flatNodeOf(void* handle) {
  return handle == document_.get() ? flat_->document() : static_cast<const FlatNode*>(handle);
}

void* Content::handleOf(const FlatNode* node) {
  if (node == flat_->document()) return document_.get();
  return const_cast<FlatNode*>(node);
}

xmlNode* Content::nodeOf(void* handle) {
  growOnce();
  if (!flat_ || !flat_->holds(handle)) return static_cast<xmlNode*>(handle);
  return grown_[flat_->indexOf(static_cast<const FlatNode*>(handle))];
}

void* Content::handleOf(xmlNode* node) const {
  const bool wasFlat = node && node->type != XML_DOCUMENT_NODE && node->_private;
  return wasFlat ? node->_private : node;
}

void Content::growOnce() {
  if (!flat()) return;
  grown_ = grow(*flat_, *document_);
  flat_->texts = std::string();
}

}  // namespace awizo::libxml2
