#include "formats/upper/checking/traced_document.h"

namespace awizo {

XmlNode TracedDocument::last() { return {*this, last_}; }

void* TracedDocument::found(void* node) const {
  if (node == nullptr) return nullptr;
  found_.insert(node);
  return node;
}

std::string TracedDocument::textOf(void* node) const {
  taken_.insert(node);
  return within_->textOf(node);
}

void* TracedDocument::selectSingleOf(void* node, std::string_view path) const {
  void* const selected = found(within_->selectSingleOf(node, path));
  last_ = selected != nullptr ? selected : node;
  return selected;
}

std::vector<void*> TracedDocument::selectAllOf(void* node, std::string_view path) const {
  last_ = node;
  std::vector<void*> selected = within_->selectAllOf(node, path);
  for (void* each : selected) found(each);
  return selected;
}

}  // namespace awizo
