#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/locale.h"

namespace awizo {

/// A decimal number exactly as a text has it: digits times ten to the power of the exponent.
struct DecimalNumber {
  bool negative = false;
  std::string digits;  ///< without leading zeros; empty for zero
  int exponent = 0;    ///< power of ten of the last digit
};

/// The white space at the start of the text, in bytes: space, no-break space, tab, line ends.
std::size_t leadingBlanks(std::string_view text);

/// Reads a text as the locale writes numbers: white space, one sign before or after, parentheses
/// for a negative, a currency sign, group separators after the first digit, an exponent, "&H" and
/// "&O". Nothing for a text that is no number, and for one beyond the range of a floating number.
std::optional<DecimalNumber> readNumber(std::string_view text, const LocaleFacts& facts);

/// The same, whatever the range; `fitsFloating` says whether it is inside.
std::optional<DecimalNumber> readNumberOfAnySize(std::string_view text, const LocaleFacts& facts);
bool fitsFloating(const DecimalNumber& number);

/// The value of a text of at most 15 digits with one decimal separator at most, as nearly all
/// numbers of a document are; nothing for any other text, which may be a number too.
std::optional<double> plainValue(std::string_view text, const LocaleFacts& facts);

/// The floating number nearest to a number that fits one.
double toFloating(const DecimalNumber& number);

/// The number with this many decimals, without groups or exponent, rounded half away from zero on
/// its digits. A negative keeps its sign even where it rounds to zero.
std::string fixedText(const DecimalNumber& number, int decimals, std::string_view separator);

/// A finite floating number as text: 15 significant digits, no trailing zeros; with an exponent
/// from 1E+15 up, and for a fraction that 15 decimals can't hold.
std::string floatingText(double value, std::string_view separator);

}  // namespace awizo
