#pragma once

#include <unicode/coll.h>

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace awizo::icu_locale {

/// Makes the collation keys of texts whose characters all are plain ones, many times as fast as the
/// collator and byte for byte the same. A plain character has one weight, of letter and nothing
/// else, in every place; in a locale these are most Latin and Cyrillic letters, digits and marks,
/// without accents.
class PlainLetters {
 public:
  /// Learns the weights from the collator, which orders at secondary strength.
  explicit PlainLetters(const icu::Collator& collator);

  /// The key, or none where the text has to be left to the collator.
  std::optional<std::string> key(std::string_view text) const;

 private:
  static constexpr std::size_t count = 0x500;  ///< Latin to Cyrillic
  static constexpr std::size_t longestText = 200;

  struct Weight {
    std::array<char, 4> bytes{};
    std::uint8_t length = 0;  ///< 0 for a character that isn't plain
    /// Whether the first byte is left out after a character with the same one.
    bool sharesFirstByte = false;
  };

  void learn(const icu::Collator& collator, char16_t letter);
  void forgetContractions(const icu::Collator& collator);
  const Weight* nextWeight(std::string_view& text) const;

  std::array<Weight, count> weights_{};
};

}  // namespace awizo::icu_locale
