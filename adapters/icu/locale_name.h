#pragma once

#include <unicode/locid.h>

#include <string>
#include <string_view>

namespace awizo::icu_locale {

/// ICU's locale for a name of the environment's form: "ru_RU.UTF-8", "sr_RS@latin".
icu::Locale localeNamed(std::string_view name);

bool writesCyrillic(const icu::Locale& locale);

}  // namespace awizo::icu_locale
