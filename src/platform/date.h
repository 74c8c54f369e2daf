#pragma once

#include <chrono>
#include <compare>

namespace awizo {

/// A day of the Gregorian calendar. Dates of the system run from year 100 to 9999.
using Date = std::chrono::year_month_day;

inline Date makeDate(int year, unsigned month, unsigned day) {
  return Date{std::chrono::year{year}, std::chrono::month{month}, std::chrono::day{day}};
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
