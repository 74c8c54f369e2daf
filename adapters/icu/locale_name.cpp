#include "adapters/icu/locale_name.h"

#include <cstdlib>

#include "adapters/icu/icu_locale.h"

namespace awizo {
namespace icu_locale {
namespace {

constexpr const char* whereNoneIsNamed = "ru_RU";

bool isKnown(const icu::Locale& locale) {
  return !locale.isBogus() && *locale.getLanguage() != '\0' && *locale.getISO3Language() != '\0';
}

}  // namespace

icu::Locale localeNamed(std::string_view name) {
  const std::string_view modifier = name.find('@') == name.npos ? "" : name.substr(name.find('@'));
  const std::string plain(name.substr(0, name.find_first_of(".@")));
  icu::Locale locale(plain.c_str());
  if (plain == "C" || plain == "POSIX" || !isKnown(locale)) locale = icu::Locale(whereNoneIsNamed);
  if (modifier == "@latin") {
    locale =
        icu::Locale((std::string(locale.getLanguage()) + "_Latn").c_str(), locale.getCountry());
  }
  // Texts are read back by their digits and by the Gregorian calendar, whatever else is usual.
  UErrorCode status = U_ZERO_ERROR;
  locale.setKeywordValue("numbers", "latn", status);
  locale.setKeywordValue("calendar", "gregorian", status);
  return locale;
}

bool writesCyrillic(const icu::Locale& locale) {
  UErrorCode status = U_ZERO_ERROR;
  icu::Locale full(locale);
  full.addLikelySubtags(status);
  return std::string_view(full.getScript()) == "Cyrl";
}

}  // namespace icu_locale

std::string IcuLocale::environmentName() {
  for (const char* variable : {"LC_ALL", "LC_NUMERIC", "LANG"}) {
    const char* value = std::getenv(variable);
    if (value && *value) return value;
  }
  return {};
}

}  // namespace awizo
