#pragma once

#include <optional>
#include <string_view>

namespace awizo {

/// The value of a text as XPath 1.0 takes it for a number: blanks, a minus, digits with or without
/// a fraction, blanks. None for any other text, one with an exponent too.
std::optional<double> xpathNumber(std::string_view text);

}  // namespace awizo
