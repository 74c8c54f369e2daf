#pragma once

#include <optional>
#include <string_view>

namespace awizo {

/// The value of a text as XPath 1.0 takes it for a number: white space, a minus, digits with or
/// without a fraction, white space. Nothing for any other text, one with an exponent included.
std::optional<double> xpathNumber(std::string_view text);

}  // namespace awizo
