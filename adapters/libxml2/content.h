#pragma once

#include <optional>
#include <vector>

#include "adapters/libxml2/flat_tree.h"
#include "adapters/libxml2/handles.h"

namespace awizo::libxml2 {

/// What a document holds: a flat tree where it has one and is only read, libxml2's nodes from the
/// first time that anything else is asked of it. A node's handle is its flat node, or its node of
/// libxml2 where it never was a flat one, and stays good when the first becomes the second.
class Content {
 public:
  Content() = default;
  Content(Owned<xmlDoc> document, std::optional<FlatTree> flat)
      : document_(std::move(document)), flat_(std::move(flat)) {}

  /// With its nodes.
  xmlDoc* document();
  /// Perhaps without nodes.
  xmlDoc* bareDocument() const { return document_.get(); }

  /// The flat tree where that is all there is, else none.
  FlatTree* flat() { return grown_.empty() && flat_ ? &*flat_ : nullptr; }
  /// The flat tree's node of a handle; only where that is all there is.
  const FlatNode* flatNodeOf(void* handle);
  void* handleOf(const FlatNode* node);

  xmlNode* nodeOf(void* handle);
  void* handleOf(xmlNode* node) const;

 private:
  void growOnce();

  Owned<xmlDoc> document_;
  /// Without its texts once it has become nodes of libxml2: then it says which handles are its own.
  std::optional<FlatTree> flat_;
  std::vector<xmlNode*> grown_;
};

}  // namespace awizo::libxml2
