#include "adapters/icu/collation.h"

#include <unicode/unistr.h>

#include <stdexcept>

namespace awizo::icu_locale {

Collation::Collation(const icu::Locale& locale) {
  UErrorCode status = U_ZERO_ERROR;
  collator_.reset(icu::Collator::createInstance(locale, status));
  if (U_FAILURE(status)) throw std::runtime_error(u_errorName(status));
  collator_->setStrength(icu::Collator::SECONDARY);
  collator_->setAttribute(UCOL_ALTERNATE_HANDLING, UCOL_NON_IGNORABLE, status);
}

std::string Collation::key(std::string_view text) const {
  if (!plainLetters_) plainLetters_ = std::make_unique<const PlainLetters>(*collator_);
  std::optional<std::string> key = plainLetters_->key(text);
  return key ? *std::move(key) : collatorsKey(text);
}

std::string Collation::collatorsKey(std::string_view text) const {
  const auto source = icu::UnicodeString::fromUTF8(
      icu::StringPiece(text.data(), static_cast<int32_t>(text.size())));
  std::string key(text.size() * 2 + 16, '\0');
  auto* bytes = reinterpret_cast<uint8_t*>(key.data());
  int32_t length = collator_->getSortKey(source, bytes, static_cast<int32_t>(key.size()));
  if (length > static_cast<int32_t>(key.size())) {
    key.resize(static_cast<std::size_t>(length));
    bytes = reinterpret_cast<uint8_t*>(key.data());
    length = collator_->getSortKey(source, bytes, length);
  }
  // Without the zero at the end, which no key needs to compare.
  key.resize(static_cast<std::size_t>(length > 0 ? length - 1 : 0));
  return key;
}

}  // namespace awizo::icu_locale
