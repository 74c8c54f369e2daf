#include "foundation/number_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <system_error>

#include "platform/floating_text.h"

namespace awizo {
namespace {

constexpr std::array<std::string_view, 5> blanks{" ", "\u00A0", "\t", "\r", "\n"};
constexpr int largestExponent = 100000;
constexpr int significantDigits = 15;

bool isDigit(char c) { return c >= '0' && c <= '9'; }

/// Walks over the text of one number.
class NumberReader {
 public:
  NumberReader(std::string_view text, const LocaleFacts& facts) : rest_(text), facts_(facts) {}

  std::optional<DecimalNumber> read() {
    skipBlanks();
    if (rest_.starts_with('&')) return readPowerOfTwoBase();
    readSurroundings(Side::leading);
    if (!readMantissa() || !readExponent()) return std::nullopt;
    readSurroundings(Side::trailing);
    if (!rest_.empty() || open_) return std::nullopt;
    return number();
  }

 private:
  enum class Side { leading, trailing };

  bool take(std::string_view token) {
    if (token.empty() || !rest_.starts_with(token)) return false;
    rest_.remove_prefix(token.size());
    return true;
  }

  void skipBlanks() { rest_.remove_prefix(leadingBlanks(rest_)); }

  bool takeSign() {
    if (signed_ || rest_.empty() || (rest_.front() != '-' && rest_.front() != '+')) return false;
    negative_ = rest_.front() == '-';
    signed_ = true;
    rest_.remove_prefix(1);
    return true;
  }

  bool takeCurrency() {
    if (currency_ || !take(facts_.currencySign)) return false;
    currency_ = true;
    return true;
  }

  /// Parentheses are a sign of their own, so no other is allowed with them.
  bool takeParenthesis(Side side) {
    if (side == Side::trailing) {
      if (!open_ || !take(")")) return false;
      open_ = false;
      return true;
    }
    if (signed_ || !take("(")) return false;
    open_ = signed_ = negative_ = true;
    return true;
  }

  void readSurroundings(Side side) {
    do {
      skipBlanks();
    } while (takeSign() || takeCurrency() || takeParenthesis(side));
  }

  bool takeGroupSeparator() {
    if (!seenDigit_) return false;
    return std::any_of(facts_.groupSeparators.begin(), facts_.groupSeparators.end(),
                       [this](const std::string& separator) { return take(separator); });
  }

  bool readMantissa() {
    bool fraction = false;
    while (!rest_.empty()) {
      if (isDigit(rest_.front())) {
        digits_ += rest_.front();
        seenDigit_ = true;
        if (fraction) ++decimals_;
        rest_.remove_prefix(1);
      } else if (!fraction && take(facts_.decimalSeparator)) {
        fraction = true;
      } else if (!takeGroupSeparator()) {
        break;
      }
    }
    return seenDigit_;
  }

  bool readExponent() {
    if (!take("e") && !take("E")) return true;
    const bool negative = rest_.starts_with('-');
    if (negative || rest_.starts_with('+')) rest_.remove_prefix(1);
    if (rest_.empty() || !isDigit(rest_.front())) return false;
    for (; !rest_.empty() && isDigit(rest_.front()); rest_.remove_prefix(1)) {
      exponent_ = std::min(exponent_ * 10 + (rest_.front() - '0'), largestExponent);
    }
    if (negative) exponent_ = -exponent_;
    return true;
  }

  std::optional<DecimalNumber> readPowerOfTwoBase() {
    rest_.remove_prefix(1);
    const bool hexadecimal = take("H") || take("h");
    if (!hexadecimal && !take("O") && !take("o")) return std::nullopt;
    std::uint64_t value = 0;
    const auto [end, error] =
        std::from_chars(rest_.data(), rest_.data() + rest_.size(), value, hexadecimal ? 16 : 8);
    if (error != std::errc()) return std::nullopt;
    rest_.remove_prefix(static_cast<std::size_t>(end - rest_.data()));
    skipBlanks();
    if (!rest_.empty()) return std::nullopt;
    digits_ = std::to_string(value);
    return number();
  }

  DecimalNumber number() {
    digits_.erase(0, std::min(digits_.find_first_not_of('0'), digits_.size()));
    // Zero times any power of ten is zero, not as many zeros as the power says.
    const int exponent = digits_.empty() ? 0 : exponent_ - decimals_;
    return {negative_, std::move(digits_), exponent};
  }

  std::string_view rest_;
  const LocaleFacts& facts_;
  std::string digits_;
  int decimals_ = 0;
  int exponent_ = 0;
  bool seenDigit_ = false;
  bool negative_ = false;
  bool signed_ = false;
  bool currency_ = false;
  bool open_ = false;
};

/// The digits of `number` in units of ten to the power of -decimals, rounded half away from zero;
/// at least one more than the decimals.
std::string roundedDigits(const DecimalNumber& number, int decimals) {
  const int kept = static_cast<int>(number.digits.size()) + number.exponent + decimals;
  std::string digits;
  if (kept >= 0) {
    const auto length = static_cast<std::size_t>(kept);
    digits = number.digits.substr(0, length);
    digits.resize(length, '0');
    if (length < number.digits.size() && number.digits[length] >= '5') {
      const auto last = digits.find_last_not_of('9');
      const std::size_t nines = last == std::string::npos ? 0 : last + 1;
      std::fill(digits.begin() + static_cast<std::ptrdiff_t>(nines), digits.end(), '0');
      if (last == std::string::npos) {
        digits.insert(digits.begin(), '1');
      } else {
        ++digits[last];
      }
    }
  }
  const auto least = static_cast<std::size_t>(decimals) + 1;
  if (digits.size() < least) digits.insert(0, least - digits.size(), '0');
  return digits;
}

std::string withExponent(const std::string& digits, int exponent, std::string_view separator) {
  std::string text = digits.substr(0, 1);
  if (digits.size() > 1) text.append(separator).append(digits, 1);
  text.append(exponent < 0 ? "E-" : "E+");
  const std::string size = std::to_string(std::abs(exponent));
  return text.append(size.size() < 2 ? "0" : "").append(size);
}

}  // namespace

std::size_t leadingBlanks(std::string_view text) {
  std::size_t length = 0;
  while (true) {
    const std::string_view rest = text.substr(length);
    const auto blank = std::find_if(blanks.begin(), blanks.end(),
                                    [rest](std::string_view one) { return rest.starts_with(one); });
    if (blank == blanks.end()) return length;
    length += blank->size();
  }
}

std::optional<DecimalNumber> readNumberOfAnySize(std::string_view text, const LocaleFacts& facts) {
  return NumberReader(text, facts).read();
}

std::optional<DecimalNumber> readNumber(std::string_view text, const LocaleFacts& facts) {
  std::optional<DecimalNumber> number = readNumberOfAnySize(text, facts);
  if (number && !fitsFloating(*number)) return std::nullopt;
  return number;
}

std::optional<double> plainValue(std::string_view text, const LocaleFacts& facts) {
  // Both the digits as a whole number and the power of ten are floating numbers exactly, so their
  // quotient is the nearest one to the number.
  constexpr std::array<double, 16> powers{1e0, 1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                          1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};
  std::int64_t whole = 0;
  std::size_t digits = 0, decimals = 0;
  bool fraction = false;
  while (!text.empty()) {
    if (isDigit(text.front())) {
      whole = whole * 10 + (text.front() - '0');
      if (++digits >= powers.size()) return std::nullopt;
      if (fraction) ++decimals;
      text.remove_prefix(1);
    } else if (!fraction && text.starts_with(facts.decimalSeparator)) {
      fraction = true;
      text.remove_prefix(facts.decimalSeparator.size());
    } else {
      return std::nullopt;
    }
  }
  if (digits == 0) return std::nullopt;
  return static_cast<double>(whole) / powers[decimals];
}

bool fitsFloating(const DecimalNumber& number) { return std::isfinite(toFloating(number)); }

double toFloating(const DecimalNumber& number) {
  // Far outside the range the digits needn't be looked at, however many there are.
  const long magnitude = static_cast<long>(number.digits.size()) + number.exponent;
  double value = 0;
  if (!number.digits.empty() && magnitude > 400) {
    value = HUGE_VAL;
  } else if (!number.digits.empty() && magnitude > -400) {
    const std::string text = number.digits + "e" + std::to_string(number.exponent);
    value = readFloating(text).value_or(magnitude > 0 ? HUGE_VAL : 0);
  }
  return number.negative ? -value : value;
}

std::string fixedText(const DecimalNumber& number, int decimals, std::string_view separator) {
  const std::string digits = roundedDigits(number, decimals);
  const std::size_t whole = digits.size() - static_cast<std::size_t>(decimals);
  std::string text(number.negative ? "-" : "");
  text.append(digits, 0, whole);
  if (decimals > 0) text.append(separator).append(digits, whole);
  return text;
}

std::string floatingText(double value, std::string_view separator) {
  if (value == 0) return "0";
  auto [digits, exponent] = leadingDigits(std::abs(value), significantDigits);
  digits.erase(digits.find_last_not_of('0') + 1);
  const int decimals = std::max(static_cast<int>(digits.size()) - 1 - exponent, 0);
  const std::string sign(value < 0 ? "-" : "");
  if (exponent >= significantDigits || decimals > significantDigits) {
    return sign + withExponent(digits, exponent, separator);
  }
  const DecimalNumber number{value < 0, digits, exponent + 1 - static_cast<int>(digits.size())};
  return fixedText(number, decimals, separator);
}

}  // namespace awizo
