#pragma once

#include <unicode/coll.h>
#include <unicode/locid.h>

#include <memory>
#include <string>
#include <string_view>

#include "adapters/icu/plain_letters.h"

namespace awizo::icu_locale {

/// The locale's order of texts, blind to case, with punctuation counting.
class Collation {
 public:
  explicit Collation(const icu::Locale& locale);

  /// Bytes that compare as the texts do.
  std::string key(std::string_view text) const;

 private:
  std::string collatorsKey(std::string_view text) const;

  std::unique_ptr<icu::Collator> collator_;
  /// Made for the first key: that takes as long as a tenth of the whole start, which asks for none.
  mutable std::unique_ptr<const PlainLetters> plainLetters_;
};

}  // namespace awizo::icu_locale
