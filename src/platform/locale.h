#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/date.h"

namespace awizo {

/// Order in which the locale writes the parts of a short date.
enum class DateOrder { dayMonthYear, monthDayYear, yearMonthDay };

/// The plain facts of a locale, from which numbers and dates are read and written.
struct LocaleFacts {
  std::string decimalSeparator;              ///< one character: "," or "."
  std::vector<std::string> groupSeparators;  ///< every one accepted in a number: " ", U+00A0
  std::string currencySign;                  ///< may be empty
  DateOrder dateOrder = DateOrder::dayMonthYear;
  bool dotSeparatesDates = false;  ///< "." is a date separator, as in Russian
};

/// What the system asks of the machine's locale.
class Locale {
 public:
  virtual ~Locale() = default;

  virtual const LocaleFacts& facts() const = 0;

  /// Short date with four digits of the year: "21.11.2026", "11/21/2026".
  virtual std::string shortDate(Date date) const = 0;
  /// Short time: "10:15", "10:15 AM".
  virtual std::string shortTime(TimeOfDay time) const = 0;
  /// Long date: "21 ноября 2026 г.".
  virtual std::string longDate(Date date) const = 0;

  /// Character by character: "ß" stays, and the ligature "ﬁ" too.
  virtual std::string upper(std::string_view text) const = 0;
  virtual std::string lower(std::string_view text) const = 0;

  // The locale's order of texts, blind to case; punctuation counts. Forms of one character (full
  // width, raised, ligatures) have equal places, so texts of equal places needn't be the same.

  /// The place of each text in the order of all of them, from 0; equal ones have equal places, and
  /// the next has the next number.
  virtual std::vector<std::int32_t> ranks(const std::vector<std::string_view>& texts) const = 0;
  /// -1, 0 or 1.
  virtual int compare(std::string_view left, std::string_view right) const = 0;

  /// The machine's single-byte encoding (windows-1251 for Cyrillic locales, windows-1252 for
  /// western ones); a character that it lacks is written "?".
  virtual std::string toSingleByte(std::string_view text) const = 0;
  virtual std::string fromSingleByte(std::string_view bytes) const = 0;

  /// Whether two texts are the same but for case.
  bool sameIgnoringCase(std::string_view left, std::string_view right) const {
    return left == right || upper(left) == upper(right);
  }
};

}  // namespace awizo
