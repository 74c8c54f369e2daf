#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "adapters/libxml2/declaration.h"
#include "adapters/libxml2/flat_tree.h"
#include "adapters/libxml2/handles.h"

namespace awizo::libxml2 {

enum class Decoding { utf8, byDeclaration };

struct Parsed {
  Owned<xmlDoc> document = nullptr;  ///< none when the load failed
  /// What the document has where that is elements, texts and CDATA sections alone; the document
  /// itself then has no nodes yet.
  std::optional<FlatTree> flat = std::nullopt;
  Declaration declaration = {};
  std::int64_t failedAtLine = 0;  ///< 0 for a load that was right, or refused as a whole
};

/// Parses a document and drops the white space between its nodes. It fails when the bytes are
/// not well-formed, pass libxml2's limits, or refer to anything outside themselves.
Parsed parse(std::string_view bytes, Decoding decoding);

}  // namespace awizo::libxml2
