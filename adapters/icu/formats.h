#pragma once

#include <unicode/locid.h>
#include <unicode/smpdtfmt.h>

#include <memory>
#include <string>

#include "platform/locale.h"

namespace awizo::icu_locale {

/// Writes dates and times in the locale's forms.
class Formats {
 public:
  explicit Formats(const icu::Locale& locale);

  std::string shortDate(Date date) const;
  std::string shortTime(TimeOfDay time) const;
  std::string longDate(Date date) const;

  DateOrder dateOrder() const;
  bool dotSeparatesDates() const;

 private:
  std::unique_ptr<icu::SimpleDateFormat> shortDate_;
  std::unique_ptr<icu::SimpleDateFormat> shortTime_;
  std::unique_ptr<icu::SimpleDateFormat> longDate_;
  icu::UnicodeString shortDatePattern_;
};

/// Separators and the currency sign of the locale; how it writes dates is left as it was.
void readNumberFacts(const icu::Locale& locale, LocaleFacts& facts);

}  // namespace awizo::icu_locale
