#include "platform/floating_text.h"

#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <system_error>
#include <vector>

namespace awizo {
namespace {

/// A whole number of any size, in parts below a milliard, the lowest first.
using Parts = std::vector<std::uint32_t>;

constexpr std::uint32_t milliard = 1'000'000'000;

void multiply(Parts& number, std::uint32_t factor) {
  std::uint64_t carried = 0;
  for (std::uint32_t& part : number) {
    carried += std::uint64_t{part} * factor;
    part = static_cast<std::uint32_t>(carried % milliard);
    carried /= milliard;
  }
  if (carried > 0) number.push_back(static_cast<std::uint32_t>(carried));
}

void multiplyByPower(Parts& number, std::uint32_t base, int power) {
  constexpr int step = 12;
  std::uint32_t factor = 1;
  for (int i = 0; i < step; ++i) factor *= base;
  for (; power >= step; power -= step) multiply(number, factor);
  for (; power > 0; --power) multiply(number, base);
}

std::string digitsOf(const Parts& number) {
  std::string digits = std::to_string(number.back());
  for (std::size_t i = number.size() - 1; i-- > 0;) {
    digits += std::to_string(milliard + number[i]).substr(1);
  }
  return digits;
}

/// All digits of a number above zero, and how many of them are decimals.
std::string exactDigits(double value, int& decimals) {
  constexpr int bits = 53;
  int exponent = 0;
  auto whole = static_cast<std::uint64_t>(std::ldexp(std::frexp(value, &exponent), bits));
  exponent -= bits;
  for (; whole % 2 == 0; whole /= 2) ++exponent;
  Parts number{static_cast<std::uint32_t>(whole % milliard)};
  if (whole >= milliard) number.push_back(static_cast<std::uint32_t>(whole / milliard));
  // A half is five tenths.
  decimals = exponent < 0 ? -exponent : 0;
  multiplyByPower(number, exponent < 0 ? 5 : 2, std::abs(exponent));
  return digitsOf(number);
}

bool isRoundedUp(const std::string& digits, std::size_t count) {
  if (digits[count] != '5') return digits[count] > '5';
  const bool isMoreThanHalf = digits.find_first_not_of('0', count + 1) != digits.npos;
  return isMoreThanHalf || (digits[count - 1] - '0') % 2 == 1;
}

}  // namespace

#if defined(__cpp_lib_to_chars)

std::optional<double> readFloating(std::string_view text) {
  double value = 0;
  const auto read = std::from_chars(text.data(), text.data() + text.size(), value);
  if (read.ec == std::errc::result_out_of_range) return std::nullopt;
  return value;
}

#else

std::optional<double> readFloating(std::string_view text) {
  // The library of the page's compiler has no from_chars for this; its strtod knows no locale.
  const double value = std::strtod(std::string(text).c_str(), nullptr);
  if (!std::isfinite(value)) return std::nullopt;
  return value;
}

#endif

LeadingDigits leadingDigits(double value, std::size_t count) {
  int decimals = 0;
  std::string digits = exactDigits(value, decimals);
  LeadingDigits leading{{}, static_cast<int>(digits.size()) - 1 - decimals};
  leading.digits = digits.substr(0, count);
  leading.digits.resize(count, '0');
  if (digits.size() <= count || !isRoundedUp(digits, count)) return leading;
  std::size_t at = count;
  while (at > 0 && leading.digits[at - 1] == '9') leading.digits[--at] = '0';
  if (at > 0) {
    ++leading.digits[at - 1];
  } else {
    leading.digits.front() = '1';
    ++leading.exponent;
  }
  return leading;
}

}  // namespace awizo
