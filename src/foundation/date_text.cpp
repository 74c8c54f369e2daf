#include "foundation/date_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <chrono>
#include <vector>

#include "foundation/number_text.h"

namespace awizo {
namespace {

using Figures = std::array<int, 3>;

/// The places of day, month and year among the three figures.
struct Order {
  std::size_t day;
  std::size_t month;
  std::size_t year;
};

constexpr Order dayMonthYear{0, 1, 2};
constexpr Order monthDayYear{1, 0, 2};
constexpr Order yearMonthDay{2, 1, 0};
constexpr Order yearDayMonth{1, 2, 0};

/// The orders in which a locale's reader tries the figures.
std::vector<Order> trialsOf(DateOrder order) {
  switch (order) {
    case DateOrder::dayMonthYear:
      return {dayMonthYear, yearMonthDay, monthDayYear, yearDayMonth};
    case DateOrder::monthDayYear:
      return {monthDayYear, yearMonthDay, dayMonthYear};
    case DateOrder::yearMonthDay:
      break;
  }
  return {yearMonthDay, monthDayYear, dayMonthYear};
}

int wholeYear(int year) {
  if (year < 30) return 2000 + year;
  return year < 100 ? 1900 + year : year;
}

/// Walks over the text of a date, a time, or both.
class DateReader {
 public:
  DateReader(std::string_view text, const LocaleFacts& facts) : rest_(text), facts_(facts) {
    skipBlanks();
  }

  bool atEnd() const { return rest_.empty(); }

  /// Takes a date; without one the text stays as it is.
  std::optional<Date> takeDate() {
    const std::string_view start = rest_;
    Figures figures{};
    if (takeFigure(figures[0]) && takeSeparator() && takeFigure(figures[1]) && takeSeparator() &&
        takeFigure(figures[2]) && endsHere()) {
      for (const Order& order : trialsOf(facts_.dateOrder)) {
        const Date date =
            makeDate(wholeYear(figures[order.year]), static_cast<unsigned>(figures[order.month]),
                     static_cast<unsigned>(figures[order.day]));
        if (isDate(date)) return date;
      }
    }
    rest_ = start;
    return std::nullopt;
  }

  std::optional<TimeOfDay> takeTime() {
    TimeOfDay time;
    if (!takeFigure(time.hour) || !take(":") || !takeFigure(time.minute)) return std::nullopt;
    if (take(":") && !takeFigure(time.second)) return std::nullopt;
    skipBlanks();
    if (!takeHalfOfDay(time.hour)) return std::nullopt;
    if (time.hour > 23 || time.minute > 59 || time.second > 59) return std::nullopt;
    skipBlanks();
    return time;
  }

 private:
  void skipBlanks() { rest_.remove_prefix(leadingBlanks(rest_)); }

  bool take(std::string_view token) {
    if (!rest_.starts_with(token)) return false;
    rest_.remove_prefix(token.size());
    return true;
  }

  /// A figure has at most four digits.
  bool takeFigure(int& figure) {
    const auto end = std::from_chars(rest_.data(), rest_.data() + rest_.size(), figure).ptr;
    const auto length = static_cast<std::size_t>(end - rest_.data());
    if (length < 1 || length > 4 || figure < 0 || rest_.front() == '-') return false;
    rest_.remove_prefix(length);
    return true;
  }

  /// One separator, with or without white space around it; white space alone is one too.
  bool takeSeparator() {
    const std::size_t blanks = leadingBlanks(rest_);
    rest_.remove_prefix(blanks);
    const bool mark =
        take("/") || take("-") || take(",") || (facts_.dotSeparatesDates && take("."));
    if (mark) skipBlanks();
    return mark || blanks > 0;
  }

  bool endsHere() {
    const std::size_t blanks = leadingBlanks(rest_);
    rest_.remove_prefix(blanks);
    return rest_.empty() || blanks > 0;
  }

  bool takeHalfOfDay(int& hour) {
    const bool morning = take("AM") || take("am");
    const bool evening = !morning && (take("PM") || take("pm"));
    if (!morning && !evening) return true;
    if (hour > 12) return false;
    hour = hour % 12 + (evening ? 12 : 0);
    return true;
  }

  std::string_view rest_;
  const LocaleFacts& facts_;
};

std::string padded(int value, std::size_t width) {
  const std::string digits = std::to_string(value);
  return std::string(width - std::min(digits.size(), width), '0') + digits;
}

std::optional<Date> checked(Date date) { return isDate(date) ? std::optional(date) : std::nullopt; }

}  // namespace

bool isDate(Date date) {
  return date.ok() && date.year() >= std::chrono::year{100} &&
         date.year() <= std::chrono::year{9999};
}

std::optional<Date> readDate(std::string_view text, const LocaleFacts& facts) {
  DateReader reader(text, facts);
  const std::optional<Date> date = reader.takeDate();
  if (!date || (!reader.atEnd() && (!reader.takeTime() || !reader.atEnd()))) return std::nullopt;
  return date;
}

std::optional<TimeOfDay> readTime(std::string_view text, const LocaleFacts& facts) {
  DateReader reader(text, facts);
  reader.takeDate();
  const std::optional<TimeOfDay> time = reader.takeTime();
  return reader.atEnd() ? time : std::nullopt;
}

std::string isoDate(Date date) {
  return padded(static_cast<int>(date.year()), 4) + "-" +
         padded(static_cast<int>(static_cast<unsigned>(date.month())), 2) + "-" +
         padded(static_cast<int>(static_cast<unsigned>(date.day())), 2);
}

std::string hourMinute(TimeOfDay time) {
  return padded(time.hour, 2) + ":" + padded(time.minute, 2);
}

std::optional<Date> plusMonths(Date date, int months) {
  const Date moved = date + std::chrono::months{months};
  if (moved.ok()) return checked(moved);
  return checked(moved.year() / moved.month() / std::chrono::last);
}

std::optional<Date> plusDays(Date date, int days) {
  return checked(Date{std::chrono::sys_days{date} + std::chrono::days{days}});
}

}  // namespace awizo
