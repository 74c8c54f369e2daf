#pragma once

#include <optional>
#include <string_view>

#include "adapters/libxml2/loading.h"

namespace awizo::libxml2 {

/// Parses into a flat tree, with a document of libxml2 that has no nodes yet. None where the
/// document has more than elements, texts and CDATA sections; then it must be parsed in the other
/// way.
std::optional<Parsed> parseFlat(std::string_view bytes, int options);

}  // namespace awizo::libxml2
