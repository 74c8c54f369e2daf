#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/date.h"
#include "platform/locale.h"

namespace awizo {

/// Whether the day exists and lies in the years 100 to 9999.
bool isDate(Date date);

/// Reads a date in figures: day, month and year in the order of the locale, or else in the first of
/// the other orders that makes a day. Two-digit years are 2000 to 2029 and 1930 to 1999. A time
/// after it is left out. Nothing for any other text.
std::optional<Date> readDate(std::string_view text, const LocaleFacts& facts);

/// Reads "10:15" or "10:15:30", with or without "AM" or "PM" after it. A date before it is left
/// out. Nothing for any other text.
std::optional<TimeOfDay> readTime(std::string_view text, const LocaleFacts& facts);

/// "yyyy-mm-dd".
std::string isoDate(Date date);
/// "hh:mm", 24-hour clock.
std::string hourMinute(TimeOfDay time);

/// The date that many months later; a day past the month's end becomes its last day. Nothing
/// outside the years 100 to 9999.
std::optional<Date> plusMonths(Date date, int months);
std::optional<Date> plusDays(Date date, int days);

}  // namespace awizo
