#pragma once

#include <optional>
#include <string_view>

namespace awizo {

/// The floating number nearest to a text of digits, with one point among them or none, and an
/// exponent or none ("12.5", "125e-1"). Nothing for one beyond the range of a floating number.
std::optional<double> readFloating(std::string_view text);

}  // namespace awizo
