#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace awizo::papers {

/// A quantity, weight or length exactly as a document writes it.
struct Amount {
  std::int64_t millionths = 0;
  auto operator<=>(const Amount&) const = default;
};

/// The number of a document, with a point or a comma; nothing for a text that is no number, below
/// zero, of a milliard or more, or with more than six decimals.
std::optional<Amount> amountOf(std::string_view text);

/// Nothing where one of them is nothing, or the sum is beyond all bounds.
std::optional<Amount> sumOf(std::optional<Amount> left, std::optional<Amount> right);

/// "7,5": with a comma, without zeros at the end.
std::string amountText(Amount amount);

/// The same for a number of a document; what is none stays as it is.
std::string amountText(std::string_view text);

}  // namespace awizo::papers
