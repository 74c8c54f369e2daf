#pragma once

#include <array>
#include <string_view>

namespace awizo {

/// What a missing value of a document reads as.
enum class Missing { blank, minusOne };

/// Columns of grdPozycje that a document's line fills.
inline constexpr int lineColumns = 22;
inline constexpr int asItStands = -1;

/// Where a column comes from: the path below `Line`, empty for a column that the document doesn't
/// fill, what a missing value reads as, and the decimals of a number.
struct LineSource {
  std::string_view path;
  Missing missing = Missing::blank;
  int decimals = asItStands;
};

using LineSources = std::array<LineSource, lineColumns>;

}  // namespace awizo
