#include "numbers/number_range.h"

#include <algorithm>
#include <charconv>
#include <vector>

#include "packagedialog/serial_number.h"
#include "platform/text.h"

namespace awizo {
namespace {

/// Of prefix and serial together.
constexpr std::size_t freeDigits = 16;
constexpr std::size_t shortestPrefix = 4;
constexpr std::size_t longestPrefix = 12;

bool isDigits(std::string_view text) {
  return !text.empty() &&
         std::ranges::all_of(text, [](char letter) { return letter >= '0' && letter <= '9'; });
}

std::optional<std::uint64_t> wholeNumber(std::string_view text) {
  std::uint64_t number = 0;
  const auto read = std::from_chars(text.data(), text.data() + text.size(), number);
  const bool isWhole = read.ec == std::errc{} && read.ptr == text.data() + text.size();
  return isWhole && isDigits(text) ? std::optional(number) : std::nullopt;
}

std::string textOfDigits(std::uint64_t number, std::size_t digits) {
  const std::string text = std::to_string(number);
  return std::string(digits - std::min(digits, text.size()), '0') + text;
}

std::uint64_t mostOf(std::size_t digits) {
  std::uint64_t most = 1;
  for (std::size_t i = 0; i < digits; ++i) most *= 10;
  return most - 1;
}

/// How many serials from this one to the range's last are in no part.
std::uint64_t serialsFrom(std::uint64_t serial, const NumberRange& range,
                          const std::vector<HandedPart>& handed) {
  std::uint64_t count = range.last + 1 - serial;
  for (const HandedPart& part : handed) {
    const std::uint64_t first = std::max(part.range.first, serial);
    const std::uint64_t last = std::min(part.range.last, range.last);
    if (areAlike(part.range, range) && first <= last) count -= last + 1 - first;
  }
  return count;
}

}  // namespace

bool areAlike(const NumberRange& one, const NumberRange& other) {
  return one.extension == other.extension && one.prefix == other.prefix;
}

std::size_t serialDigits(std::string_view prefix) { return freeDigits - prefix.size(); }

std::optional<NumberRange> rangeOf(std::string_view extension, std::string_view prefix,
                                   std::string_view first, std::string_view last,
                                   std::string_view next, std::string& refusal) {
  refusal.clear();
  const auto refuse = [&refusal](std::string words) {
    refusal = std::move(words);
    return std::nullopt;
  };
  if (extension.size() != 1 || !isDigits(extension))
    return refuse("Первая цифра — одна, от 0 до 9.");
  if (!isDigits(prefix) || prefix.size() < shortestPrefix || prefix.size() > longestPrefix) {
    return refuse("Префикс фирмы — от 4 до 12 цифр, как в свидетельстве GS1.");
  }
  if (prefix.find_first_not_of('0') == prefix.npos)
    return refuse("Префикс фирмы не из одних нулей.");
  const std::uint64_t most = mostOf(serialDigits(prefix));
  const auto lowest = wholeNumber(first);
  const auto highest = wholeNumber(last);
  if (!lowest || !highest || *lowest > *highest || *highest > most) {
    return refuse("Порядковые номера — от меньшего к большему, не больше " + std::to_string(most) +
                  ".");
  }
  const auto following = next.empty() ? lowest : wholeNumber(next);
  if (!following || *following < *lowest || *following > *highest + 1) {
    return refuse("Следующий номер — из этого же диапазона.");
  }
  return NumberRange{std::string(extension), std::string(prefix), *lowest, *highest, *following};
}

std::string containerNumber(const NumberRange& range, std::uint64_t serial) {
  const std::string digits =
      range.extension + range.prefix + textOfDigits(serial, serialDigits(range.prefix));
  return digits + std::to_string(containerCheckDigit(digits));
}

std::optional<std::uint64_t> serialIn(const NumberRange& range, std::string_view number) {
  const std::string start = range.extension + range.prefix;
  if (!number.starts_with(start)) return std::nullopt;
  const auto serial =
      wholeNumber(number.substr(start.size()).substr(0, serialDigits(range.prefix)));
  const bool isInside = serial && range.first <= *serial && *serial <= range.last;
  return isInside && containerNumber(range, *serial) == number ? serial : std::nullopt;
}

std::uint64_t numbersLeft(const NumberRange& range, const std::vector<HandedPart>& handed) {
  return serialsFrom(range.next, range, handed);
}

bool isNearlyUsedUp(const NumberRange& range, const std::vector<HandedPart>& handed) {
  return numbersLeft(range, handed) <= serialsFrom(range.first, range, handed) / 10;
}

std::string leftWords(const NumberRange& range, const std::vector<HandedPart>& handed) {
  const std::uint64_t left = numbersLeft(range, handed);
  if (left == 0) {
    return "Номера кончились: задайте новый диапазон в «Бумаги → Номера упаковок».";
  }
  const std::string words = "осталось номеров: " + std::to_string(left);
  return isNearlyUsedUp(range, handed) ? "Номера кончаются, " + words : words;
}

std::string handedWords(const HandedPart& part) {
  return joined({"отданы ", std::to_string(part.range.first), "–", std::to_string(part.range.last),
                 ": ", part.place, ", ", part.date.substr(8), ".", part.date.substr(5, 2), ".",
                 part.date.substr(0, 4)});
}

std::string prefixDoubt(const NumberRange& range, std::string_view sellerILN) {
  if (sellerILN.empty() || sellerILN.starts_with(range.prefix)) return "";
  return joined({"ILN вашей фирмы ", sellerILN,
                 " начинается с других цифр. Проверьте префикс, если номера не от перевозчика."});
}

std::string storedText(const NumberRange& range) {
  std::string text = "range";
  for (const std::string& field : {range.extension, range.prefix, std::to_string(range.first),
                                   std::to_string(range.last), std::to_string(range.next)}) {
    text += " " + field;
  }
  return text + "\n";
}

std::optional<NumberRange> rangeInStore(std::string_view text) {
  if (!text.ends_with('\n')) return std::nullopt;
  const std::vector<std::string> fields = split(text.substr(0, text.size() - 1), " ");
  if (fields.size() != 6 || fields[0] != "range") return std::nullopt;
  std::string refusal;
  return rangeOf(fields[1], fields[2], fields[3], fields[4], fields[5], refusal);
}

}  // namespace awizo
