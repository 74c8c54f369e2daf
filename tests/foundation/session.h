#pragma once

#include <string>
#include <string_view>

#include "adapters/icu/icu_locale.h"
#include "foundation/conversions.h"

namespace awizo::test {

/// The conversions of a session whose start has found out the separator.
struct Session {
  explicit Session(std::string_view localeName) : locale(localeName) {
    separator = conversions.GetDecimalSeparator();
  }

  IcuLocale locale;
  std::string separator;
  Conversions conversions{locale, separator};
};

}  // namespace awizo::test
