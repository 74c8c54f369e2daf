#include "adapters/icu/plain_letters.h"

#include <unicode/ucol.h>
#include <unicode/uniset.h>
#include <unicode/unistr.h>
#include <unicode/usetiter.h>

#include <algorithm>

namespace awizo::icu_locale {
namespace {

// How the collator writes its keys: the letters' weights, a separator, then the accents' weights,
// where runs of "no accent" are counted.
constexpr char levelSeparator = 0x01;
constexpr char groupEndsBelow = 0x03;
constexpr char groupEndsAbove = static_cast<char>(0xFF);
constexpr int noAccent = 0x05;
constexpr int manyNoAccents = 0x25;
constexpr int mostNoAccents = 0x21;

std::string collatorsKey(const icu::Collator& collator, const icu::UnicodeString& text) {
  std::array<std::uint8_t, 64> bytes{};
  const int32_t length =
      collator.getSortKey(text, bytes.data(), static_cast<int32_t>(bytes.size()));
  if (length < 1 || length > static_cast<int32_t>(bytes.size())) return {};
  return {reinterpret_cast<const char*>(bytes.data()), static_cast<std::size_t>(length - 1)};
}

unsigned char unsignedByte(char byte) { return static_cast<unsigned char>(byte); }

/// A key in the making; the caller sees to it that there is room.
class KeyWriter {
 public:
  void append(char byte) { bytes_[length_++] = byte; }
  void append(const char* bytes, std::size_t count) {
    for (std::size_t i = 0; i < count; ++i) append(bytes[i]);
  }
  /// The accents' weights of a text that has none.
  void appendNoAccents(int letters) {
    append(levelSeparator);
    if (letters == 0) return;
    int more = letters - 1;
    for (; more >= mostNoAccents; more -= mostNoAccents) append(manyNoAccents);
    append(static_cast<char>(noAccent + more));
  }
  std::string text() const { return {bytes_.data(), length_}; }

 private:
  std::array<char, 1200> bytes_;
  std::size_t length_ = 0;
};

}  // namespace

PlainLetters::PlainLetters(const icu::Collator& collator) {
  for (std::size_t letter = 0x20; letter < count; ++letter) {
    learn(collator, static_cast<char16_t>(letter));
  }
  forgetContractions(collator);
}

void PlainLetters::learn(const icu::Collator& collator, char16_t letter) {
  const icu::UnicodeString once(letter);
  const std::string key = collatorsKey(collator, once);
  const std::string ending{levelSeparator, static_cast<char>(noAccent)};
  if (!key.ends_with(ending)) return;
  Weight weight;
  const std::size_t length = key.size() - ending.size();
  if (length == 0 || length > weight.bytes.size()) return;
  if (key.find(levelSeparator) != length) return;
  key.copy(weight.bytes.data(), length);
  weight.length = static_cast<std::uint8_t>(length);
  const std::string twice = collatorsKey(collator, icu::UnicodeString(once).append(letter));
  weight.sharesFirstByte = twice.size() == key.size() + length - 1;
  if (!weight.sharesFirstByte && twice.size() != key.size() + length) return;
  weights_[letter] = weight;
}

void PlainLetters::forgetContractions(const icu::Collator& collator) {
  icu::UnicodeSet contractions;
  UErrorCode status = U_ZERO_ERROR;
  ucol_getContractionsAndExpansions(collator.toUCollator(), contractions.toUSet(), nullptr, true,
                                    &status);
  for (icu::UnicodeSetIterator each(contractions); each.next();) {
    // One letter forgotten leaves all texts with the whole of them to the collator; the highest is
    // the rarest, as the middle dot of "l·".
    const icu::UnicodeString& letters = each.getString();
    char16_t highest = 0;
    bool allPlain = true;
    for (int32_t at = 0; at < letters.length(); ++at) {
      highest = std::max(highest, letters[at]);
      allPlain = allPlain && letters[at] < count && weights_[letters[at]].length > 0;
    }
    if (allPlain && highest > 0) weights_[highest] = {};
  }
}

const PlainLetters::Weight* PlainLetters::nextWeight(std::string_view& text) const {
  const unsigned first = unsignedByte(text[0]);
  unsigned letter = first;
  std::size_t length = 1;
  if (first >= 0x80) {
    if (first < 0xC2 || first > 0xDF || text.size() < 2) return nullptr;
    const unsigned second = unsignedByte(text[1]);
    if ((second & 0xC0U) != 0x80U) return nullptr;
    letter = ((first & 0x1FU) << 6U) | (second & 0x3FU);
    length = 2;
  }
  if (letter >= count || weights_[letter].length == 0) return nullptr;
  text.remove_prefix(length);
  return &weights_[letter];
}

std::optional<std::string> PlainLetters::key(std::string_view text) const {
  if (text.size() > longestText) return std::nullopt;
  KeyWriter key;
  int letters = 0;
  char group = 0;  // the first byte that the letters after it leave out
  while (!text.empty()) {
    const Weight* weight = nextWeight(text);
    if (!weight) return std::nullopt;
    ++letters;
    const char first = weight->bytes[0];
    if (!weight->sharesFirstByte || first != group) {
      if (group != 0) {
        key.append(unsignedByte(first) < unsignedByte(group) ? groupEndsBelow : groupEndsAbove);
      }
      key.append(first);
      group = weight->sharesFirstByte ? first : '\0';
    }
    key.append(weight->bytes.data() + 1, weight->length - 1U);
  }
  key.appendNoAccents(letters);
  return key.text();
}

}  // namespace awizo::icu_locale
