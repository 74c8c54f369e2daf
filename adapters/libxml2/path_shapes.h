#pragma once

#include <optional>
#include <string_view>

namespace awizo::libxml2 {

// What the text of an XPath expression alone shows of it. The views point into that text.

/// A path that has child steps only, each by a name in the letters A to Z, and perhaps one
/// comparison with a number: "/L/Line[Line-Item/EAN = -5.0]/Price".
struct WalkedPath {
  bool fromDocument = false;
  std::string_view names;     ///< "L/Line"
  std::string_view compared;  ///< "Line-Item/EAN", from each of these; empty: nothing is compared
  double number = 0;          ///< what one of them has to be
  std::string_view rest;      ///< "Price", from each that has the number; may be empty
};

/// None for a path of any other kind.
std::optional<WalkedPath> walkedPath(std::string_view path);

/// Whether a number with an exponent ("1e5") is in it, outside of names and literals. XPath 1.0 has
/// no such numbers.
bool hasExponent(std::string_view expression);

}  // namespace awizo::libxml2
