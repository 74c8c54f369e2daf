#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace awizo {

/// The firm's own range of package numbers (SSCC): the extension digit, the prefix that GS1 has
/// given to the firm, and serials, which fill what is left of 17 digits. The check digit is the
/// 18th.
struct NumberRange {
  std::string extension = "0";
  std::string prefix;
  std::uint64_t first = 0;
  std::uint64_t last = 0;
  std::uint64_t next = 0;  ///< one above `last` where all have been given
  bool operator==(const NumberRange&) const = default;
};

/// A part of the range whose numbers another place gives.
struct HandedPart {
  NumberRange range;
  std::string date;  ///< "yyyy-mm-dd"
  std::string place;
};

/// Whether they can have numbers in common: extension and prefix are the same.
bool areAlike(const NumberRange& one, const NumberRange& other);

/// How many digits a serial has after such a prefix.
std::size_t serialDigits(std::string_view prefix);

/// The range of these texts; `refusal` says in Russian what is wrong with them where there is none.
/// An empty `next` is `first`.
std::optional<NumberRange> rangeOf(std::string_view extension, std::string_view prefix,
                                   std::string_view first, std::string_view last,
                                   std::string_view next, std::string& refusal);

/// The number with its check digit.
std::string containerNumber(const NumberRange& range, std::uint64_t serial);

/// The serial of a number of this range; nothing for another number.
std::optional<std::uint64_t> serialIn(const NumberRange& range, std::string_view number);

/// So many are still to be given, those of the parts apart, which don't overlap.
std::uint64_t numbersLeft(const NumberRange& range, const std::vector<HandedPart>& handed = {});

/// What the user should know of it, in Russian: "осталось 9998"; that few or none are left.
std::string leftWords(const NumberRange& range, const std::vector<HandedPart>& handed = {});
/// Whether a tenth of the range or less is left.
bool isNearlyUsedUp(const NumberRange& range, const std::vector<HandedPart>& handed = {});

/// "отданы 901–1000: Склад 2, 22.11.2026".
std::string handedWords(const HandedPart& part);

/// What doesn't fit where the firm's own ILN doesn't begin with the prefix; empty where it does.
/// That may be right: a carrier's numbers have the carrier's prefix.
std::string prefixDoubt(const NumberRange& range, std::string_view sellerILN);

/// The range as a text for a store, and back; nothing for a text of another form.
std::string storedText(const NumberRange& range);
std::optional<NumberRange> rangeInStore(std::string_view text);

}  // namespace awizo
