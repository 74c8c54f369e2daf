#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace awizo {

/// The floating number nearest to a text of digits, with one point among them or none, and an
/// exponent or none ("12.5", "125e-1"). Nothing for one beyond the range of a floating number.
std::optional<double> readFloating(std::string_view text);

/// The first digits of a number, and the power of ten that the first one counts: "125" and 1 for
/// 12.5.
struct LeadingDigits {
  std::string digits;
  int exponent = 0;
};

/// So many digits of a number above zero, the last one rounded, a half to the even neighbour.
LeadingDigits leadingDigits(double value, std::size_t count);

}  // namespace awizo
