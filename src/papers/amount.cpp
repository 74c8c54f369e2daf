#include "papers/amount.h"

namespace awizo::papers {
namespace {

constexpr std::int64_t one = 1'000'000;
constexpr std::size_t decimals = 6;
/// So many that no document with numbers of its own comes near, and far from what an Amount holds.
constexpr std::int64_t mostMillionths = 4'000'000'000'000'000'000;

}  // namespace

std::optional<Amount> amountOf(std::string_view text) {
  const std::size_t point = text.find_first_of(".,");
  const std::string_view whole = text.substr(0, point);
  const std::string_view fraction = point == text.npos ? "" : text.substr(point + 1);
  if (whole.empty() || whole.size() > 9 || fraction.size() > decimals) return std::nullopt;
  std::string digits(whole);
  digits += fraction;
  digits.append(decimals - fraction.size(), '0');
  std::int64_t millionths = 0;
  for (const char digit : digits) {
    if (digit < '0' || digit > '9') return std::nullopt;
    millionths = millionths * 10 + (digit - '0');
  }
  return Amount{millionths};
}

std::optional<Amount> sumOf(std::optional<Amount> left, std::optional<Amount> right) {
  if (!left || !right || left->millionths > mostMillionths - right->millionths) return std::nullopt;
  return Amount{left->millionths + right->millionths};
}

std::string amountText(Amount amount) {
  std::string fraction = std::to_string(amount.millionths % one);
  fraction.insert(0, decimals - fraction.size(), '0');
  fraction.erase(fraction.find_last_not_of('0') + 1);
  const std::string whole = std::to_string(amount.millionths / one);
  return fraction.empty() ? whole : whole + "," + fraction;
}

std::string amountText(std::string_view text) {
  const std::optional<Amount> amount = amountOf(text);
  return amount ? amountText(*amount) : std::string(text);
}

}  // namespace awizo::papers
