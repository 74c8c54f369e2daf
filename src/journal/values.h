#pragma once

#include <cstdint>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "journal/record.h"
#include "platform/date.h"
#include "platform/run_time_error.h"

namespace awizo::journal {

// Values and run-time errors as records have them: how it ended, and for an error its number, for
// a value the numbers that it consists of; then its texts. The number of the source stands before.

inline constexpr std::int64_t endedWell = 0;
inline constexpr std::int64_t endedByError = 1;

inline void put(Record& record, bool value) { record.numbers.push_back(value ? 1 : 0); }
inline void put(Record& record, const std::string& value) { record.texts.push_back(value); }
inline void put(Record& record, const std::vector<std::string>& values) {
  record.texts.insert(record.texts.end(), values.begin(), values.end());
}
inline void put(Record& record, const Moment& moment) {
  record.numbers.insert(
      record.numbers.end(),
      {int(moment.date.year()), unsigned(moment.date.month()), unsigned(moment.date.day()),
       moment.time.hour, moment.time.minute, moment.time.second});
}

/// Whether the numbers from the third on are a day and a time of it.
inline bool isMoment(const std::vector<std::int64_t>& numbers) {
  const auto within = [&](std::size_t at, std::int64_t least, std::int64_t most) {
    return numbers[at] >= least && numbers[at] <= most;
  };
  return within(2, 100, 9999) && within(3, 1, 12) && within(4, 1, 31) && within(5, 0, 23) &&
         within(6, 0, 59) && within(7, 0, 59) &&
         makeDate(static_cast<int>(numbers[2]), static_cast<unsigned>(numbers[3]),
                  static_cast<unsigned>(numbers[4]))
             .ok();
}

/// Calls, and shows the outcome to `note`, an error too. What `note` leaves as the last text is the
/// value, so that a long one isn't copied.
template <class Value, class Call, class Note>
Value noted(Call&& call, Note&& note) {
  Record record{{}, {endedWell}, {}};
  try {
    if constexpr (std::is_void_v<Value>) {
      call();
      note(record);
    } else if constexpr (std::is_same_v<Value, std::string>) {
      record.texts.push_back(call());
      note(record);
      return std::move(record.texts.back());
    } else {
      Value value = call();
      put(record, value);
      note(record);
      return value;
    }
  } catch (const RunTimeError& error) {
    Record ended{{}, {endedByError, error.number()}, {error.description()}};
    note(ended);
    throw;
  }
}

/// Whether an outcome or a fact holds such a value, or an error.
template <class Value>
bool holdsValue(const Record& record, std::size_t skipped) {
  const std::vector<std::int64_t>& numbers = record.numbers;
  const bool hasText = record.texts.size() > skipped;
  if (numbers.size() < 2) return false;
  if (numbers[1] == endedByError) return numbers.size() > 2 && hasText;
  if constexpr (std::is_same_v<Value, bool>) return numbers.size() > 2;
  if constexpr (std::is_same_v<Value, std::string>) return hasText;
  if constexpr (std::is_same_v<Value, Moment>) return numbers.size() == 8 && isMoment(numbers);
  return true;
}

/// The value of an outcome or a fact, of whose texts the first `skipped` are none of the value's.
/// Raises the error that it ended by.
template <class Value>
Value valueOf(const Record& record, std::size_t skipped = 0) {
  if (record.numbers.at(1) == endedByError) {
    throw RunTimeError(static_cast<std::int32_t>(record.numbers.at(2)), record.texts.at(skipped));
  }
  if constexpr (std::is_same_v<Value, bool>) {
    return record.numbers.at(2) != 0;
  } else if constexpr (std::is_same_v<Value, std::string>) {
    return record.texts.at(skipped);
  } else if constexpr (std::is_same_v<Value, std::vector<std::string>>) {
    return {record.texts.begin() + static_cast<std::ptrdiff_t>(skipped), record.texts.end()};
  } else if constexpr (std::is_same_v<Value, Moment>) {
    const auto number = [&](std::size_t at) { return static_cast<int>(record.numbers.at(at)); };
    return {makeDate(number(2), static_cast<unsigned>(number(3)), static_cast<unsigned>(number(4))),
            {number(5), number(6), number(7)}};
  } else {
    static_assert(std::is_void_v<Value>);
  }
}

}  // namespace awizo::journal
