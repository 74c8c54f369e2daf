#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/date.h"
#include "platform/locale.h"

namespace awizo {

/// All conversions between text, numbers and dates. Two text forms of a number exist: the screen
/// number with the locale's decimal separator, and the XML number with a point; neither is grouped.
class Conversions {
 public:
  /// `decimalSeparator` is read at each call: the control finds it out when it starts.
  Conversions(const Locale& locale, const std::string& decimalSeparator)
      : locale_(locale), decimalSeparator_(decimalSeparator) {}

  const Locale& locale() const { return locale_; }

  /// Second character of the locale's text of one half.
  std::string GetDecimalSeparator() const;
  static std::string CommaToDot(std::string_view text);
  static std::string DotToComma(std::string_view text);

  /// The number in the text with this many decimals, rounded half away from zero on its decimal
  /// digits. The empty text and a text that is no number are returned unchanged. Error 5 for fewer
  /// than no decimals.
  std::string FormatFixed(std::string_view text, int decimals) const;
  /// The text with every comma and point replaced by the locale's separator.
  std::string withLocalSeparator(std::string_view text) const;
  /// FormatFixed of withLocalSeparator.
  std::string NormalizeDecimal(std::string_view text, int decimals) const;
  /// FormatFixed with a point for the separator; "-1" where that is empty.
  std::string FormatForXml(std::string_view text, int decimals) const;
  /// The number rounded to three decimals, with either separator; 0 where the text is no number.
  double MyDouble(std::string_view text) const;
  /// Quantity (rounded to 3 decimals) times price (rounded to 2), as XML number with 2 decimals;
  /// the empty text where either is no number.
  std::string MultiplyToAmount(std::string_view quantity, std::string_view price) const;

  /// "yyyy-mm-dd".
  static std::string FormatDateIso(Date date);
  /// "hh:mm", 24-hour clock.
  static std::string FormatTimeHm(TimeOfDay time);
  /// The date plus the count in months ("802"), weeks ("803") or days ("804"), with any other code
  /// the date itself, as "yyyy-mm-dd"; the empty text where the count is no whole number or the
  /// result can't be reached.
  std::string AddPeriodToDate(Date date, std::string_view count, std::string_view code) const;

  // The platform's own conversions, by the locale.

  /// Whether the text can be read as a number.
  bool isNumeric(std::string_view text) const;
  /// Error 13 for a text that is no number, error 6 for one too large.
  double toDouble(std::string_view text) const;
  /// Rounds half to even; error 13, or 6 outside 16 bits.
  std::int16_t toInt16(std::string_view text) const;
  /// Plain number text: 15 significant digits, the locale's separator, no trailing zeros.
  std::string plainNumber(double value) const;
  /// Error 13 for a text that is no date.
  Date toDate(std::string_view text) const;
  /// Error 13 for a text that is no time ("10:15", "10:15 AM", "10:15:30").
  TimeOfDay toTime(std::string_view text) const;

 private:
  const Locale& locale_;
  const std::string& decimalSeparator_;
};

}  // namespace awizo
