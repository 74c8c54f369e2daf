#pragma once

#include <optional>
#include <string_view>
#include <vector>

namespace awizo::papers {

/// The numbers that a text such as "2-5,9" names, of packages 1 to `count`; nothing for a text of
/// another form and for numbers beyond.
std::optional<std::vector<std::size_t>> packageNumbers(std::string_view text, std::size_t count);

}  // namespace awizo::papers
