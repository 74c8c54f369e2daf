#pragma once

#include <algorithm>
#include <chrono>
#include <compare>

namespace awizo {

/// A day of the Gregorian calendar. Dates of the system run from year 100 to 9999.
using Date = std::chrono::year_month_day;

/// The day; one that isn't ok() if there is no such day.
inline Date makeDate(int year, unsigned month, unsigned day) {
  // The calendar's types keep one byte, in which 257 would become 1.
  constexpr unsigned most = 255;
  return Date{std::chrono::year{year}, std::chrono::month{std::min(month, most)},
              std::chrono::day{std::min(day, most)}};
}

/// A time of day, 24-hour clock.
struct TimeOfDay {
  int hour = 0;
  int minute = 0;
  int second = 0;
  auto operator<=>(const TimeOfDay&) const = default;
};

struct Moment {
  Date date = makeDate(1970, 1, 1);
  TimeOfDay time;
};

}  // namespace awizo
