#pragma once

#include <array>
#include <string_view>

#include "tables/columns/columns.h"

namespace awizo {

/// What a missing value of a document reads as.
enum class Missing { blank, minusOne };

inline constexpr int asItStands = -1;

/// Where a column comes from: the path below `Line`, empty for a column that the document doesn't
/// fill, what a missing value reads as, and the decimals of a number.
struct LineSource {
  std::string_view path;
  Missing missing = Missing::blank;
  int decimals = asItStands;
};

/// One for each column of grdPozycje, by its number.
using LineSources = std::array<LineSource, lineColumns.size()>;

}  // namespace awizo
