#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace awizo {

/// A quantity with three decimals, as the tables have it, as a whole number of thousandths.
using Thousandths = std::int64_t;

inline constexpr Thousandths wholeUnit = 1000;

/// Whether the quantity dialog lets the quantity through for a line of which so much is packed: it
/// sees two decimals, of which the least is 1 and the most is what is left, rounded to a whole with
/// the half to the even neighbour.
bool isLetThrough(Thousandths quantity, Thousandths despatched, Thousandths packed);

/// What of a line is to be put into packages.
struct LineRest {
  int row = 0;
  Thousandths despatched = 0, packed = 0;
  bool isCounted = false;  ///< in pieces, which aren't divided
};

enum class Spread {
  evenly,  ///< the same for each; what remains goes to the first ones
  soMany,  ///< so much for each, the rest for the last
  allHere  ///< all for the first
};

/// A row to be made in the line's table of packages. The same package may have two.
struct PlannedPart {
  std::size_t package = 0;  ///< its place among the chosen ones
  Thousandths quantity = 0;
  int replaced = 0;  ///< row that is taken out for it; 0 for none
  bool operator==(const PlannedPart&) const = default;
};

struct LinePlan {
  int row = 0;
  std::vector<PlannedPart> parts = {};
  Thousandths left = 0;  ///< what can't go in
};

/// How the rest of the line goes into so many packages, each part let through by the dialog when
/// those before it are made. `each`: for Spread::soMany, at least 1.
LinePlan planOf(const LineRest& line, std::size_t packages, Spread spread, Thousandths each = 0);

}  // namespace awizo
