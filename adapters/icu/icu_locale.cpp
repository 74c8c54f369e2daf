#include "adapters/icu/icu_locale.h"

#include <unicode/bytestream.h>
#include <unicode/casemap.h>

#include "adapters/icu/collation.h"
#include "adapters/icu/formats.h"
#include "adapters/icu/key_store.h"
#include "adapters/icu/locale_name.h"
#include "adapters/icu/single_byte.h"
#include "platform/text.h"

namespace awizo {

using icu_locale::localeNamed;
using icu_locale::writesCyrillic;

namespace {

using CaseMapping = void (*)(const char* locale, std::uint32_t options, icu::StringPiece,
                             icu::ByteSink&, icu::Edits*, UErrorCode&);

std::string mapped(CaseMapping map, const icu::Locale& locale, std::string_view text) {
  std::string result;
  icu::StringByteSink<std::string> sink(&result);
  UErrorCode status = U_ZERO_ERROR;
  map(locale.getName(), 0, {text.data(), static_cast<int32_t>(text.size())}, sink, nullptr, status);
  return result;
}

/// The text in another case. A character that has no single counterpart there stays.
std::string inCase(CaseMapping map, const icu::Locale& locale, std::string_view text) {
  std::string whole = mapped(map, locale, text);
  if (countCharacters(whole) == countCharacters(text)) return whole;
  std::string result;
  while (!text.empty()) {
    const std::string_view character = firstCharacters(text, 1);
    const std::string other = mapped(map, locale, character);
    result += countCharacters(other) == 1 ? other : character;
    text.remove_prefix(character.size());
  }
  return result;
}

}  // namespace

struct IcuLocale::Parts {
  explicit Parts(const icu::Locale& named)
      : locale(named),
        formats(named),
        collation(named),
        singleByte(writesCyrillic(named) ? "windows-1251" : "windows-1252") {}

  icu::Locale locale;
  icu_locale::Formats formats;
  icu_locale::Collation collation;
  icu_locale::SingleByteEncoding singleByte;
};

IcuLocale::IcuLocale(std::string_view name)
    : parts_(std::make_unique<const Parts>(localeNamed(name))) {
  icu_locale::readNumberFacts(parts_->locale, facts_);
  facts_.dateOrder = parts_->formats.dateOrder();
  facts_.dotSeparatesDates = parts_->formats.dotSeparatesDates();
}

IcuLocale::~IcuLocale() = default;

std::string IcuLocale::shortDate(Date date) const { return parts_->formats.shortDate(date); }

std::string IcuLocale::shortTime(TimeOfDay time) const { return parts_->formats.shortTime(time); }

std::string IcuLocale::longDate(Date date) const { return parts_->formats.longDate(date); }

std::string IcuLocale::upper(std::string_view text) const {
  return inCase(&icu::CaseMap::utf8ToUpper, parts_->locale, text);
}

std::string IcuLocale::lower(std::string_view text) const {
  return inCase(&icu::CaseMap::utf8ToLower, parts_->locale, text);
}

std::vector<std::int32_t> IcuLocale::ranks(const std::vector<std::string_view>& texts) const {
  icu_locale::KeyStore keys;
  keys.reserve(texts.size());
  for (const std::string_view text : texts) keys.add(parts_->collation.key(text));
  return keys.ranks();
}

int IcuLocale::compare(std::string_view left, std::string_view right) const {
  const int order = parts_->collation.key(left).compare(parts_->collation.key(right));
  return (order > 0) - (order < 0);
}

std::string IcuLocale::toSingleByte(std::string_view text) const {
  return parts_->singleByte.encode(text);
}

std::string IcuLocale::fromSingleByte(std::string_view bytes) const {
  return parts_->singleByte.decode(bytes);
}

}  // namespace awizo
