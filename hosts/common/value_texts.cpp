#include "hosts/common/value_texts.h"

#include <cstddef>
#include <cstdio>
#include <vector>

namespace awizo {

namespace {

/// The numbers in a text that has digits exactly where the picture has "d"; none for another text.
std::vector<int> numbersIn(std::string_view text, std::string_view picture) {
  std::vector<int> numbers;
  if (text.size() != picture.size()) return numbers;
  bool within = false;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool digit = text[i] >= '0' && text[i] <= '9';
    if (picture[i] == 'd' ? !digit : text[i] != picture[i]) return {};
    if (picture[i] == 'd') {
      if (!within) numbers.push_back(0);
      numbers.back() = numbers.back() * 10 + (text[i] - '0');
    }
    within = picture[i] == 'd';
  }
  return numbers;
}

}  // namespace

std::optional<Date> parseDate(std::string_view text) {
  const std::vector<int> numbers = numbersIn(text, "dddd-dd-dd");
  if (numbers.empty()) return std::nullopt;
  const Date date =
      makeDate(numbers[0], static_cast<unsigned>(numbers[1]), static_cast<unsigned>(numbers[2]));
  // The calendar's first year is 100.
  return date.ok() && numbers[0] >= 100 ? std::optional(date) : std::nullopt;
}

std::optional<TimeOfDay> parseTime(std::string_view text) {
  std::vector<int> numbers = numbersIn(text, "dd:dd");
  if (numbers.empty()) numbers = numbersIn(text, "dd:dd:dd");
  if (numbers.empty()) return std::nullopt;
  const TimeOfDay time{numbers[0], numbers[1], numbers.size() > 2 ? numbers[2] : 0};
  if (time.hour > 23 || time.minute > 59 || time.second > 59) return std::nullopt;
  return time;
}

std::optional<Moment> parseMoment(std::string_view text) {
  constexpr std::size_t dateLength = 10;
  constexpr std::size_t length = 19;
  if (text.size() != length || text[dateLength] != 'T') return std::nullopt;
  const std::optional<Date> date = parseDate(text.substr(0, dateLength));
  const std::optional<TimeOfDay> time = parseTime(text.substr(dateLength + 1));
  if (!date || !time) return std::nullopt;
  return Moment{*date, *time};
}

}  // namespace awizo
