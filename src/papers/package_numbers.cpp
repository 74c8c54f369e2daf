#include "papers/package_numbers.h"

#include <charconv>

#include "platform/text.h"

namespace awizo::papers {
namespace {

std::optional<std::size_t> numberOf(std::string_view text) {
  std::size_t number = 0;
  const auto read = std::from_chars(text.data(), text.data() + text.size(), number);
  if (read.ec != std::errc{} || read.ptr != text.data() + text.size()) return std::nullopt;
  return number;
}

}  // namespace

std::optional<std::vector<std::size_t>> packageNumbers(std::string_view text, std::size_t count) {
  std::vector<bool> named(count);
  bool isAny = false;
  for (const std::string& piece : split(text, ",")) {
    const std::string_view range = trimmed(piece);
    const std::size_t dash = range.find('-');
    const auto first = numberOf(trimmed(range.substr(0, dash)));
    const auto last = dash == range.npos ? first : numberOf(trimmed(range.substr(dash + 1)));
    if (!first || !last || *first == 0 || *first > *last || *last > count) return std::nullopt;
    for (std::size_t number = *first; number <= *last; ++number) named[number - 1] = true;
    isAny = true;
  }
  if (!isAny) return std::nullopt;
  std::vector<std::size_t> numbers;
  for (std::size_t i = 0; i < count; ++i) {
    if (named[i]) numbers.push_back(i + 1);
  }
  return numbers;
}

}  // namespace awizo::papers
