#include "adapters/icu/formats.h"

#include <unicode/dcfmtsym.h>
#include <unicode/gregocal.h>

#include <cfloat>
#include <stdexcept>

namespace awizo::icu_locale {
namespace {

constexpr double millisecondsPerDay = 86'400'000.0;
constexpr const char16_t* noBreakSpace = u"\u00A0";
constexpr const char16_t* narrowNoBreakSpace = u"\u202F";

void check(UErrorCode status) {
  if (U_FAILURE(status)) throw std::runtime_error(u_errorName(status));
}

std::string utf8(const icu::UnicodeString& text) {
  std::string result;
  return text.toUTF8String(result);
}

icu::UnicodeString withPlainBlanks(icu::UnicodeString pattern) {
  return pattern.findAndReplace(noBreakSpace, u" ").findAndReplace(narrowNoBreakSpace, u" ");
}

icu::UnicodeString patternOf(icu::DateFormat* made) {
  const std::unique_ptr<icu::DateFormat> format(made);
  icu::UnicodeString pattern;
  if (auto* simple = dynamic_cast<icu::SimpleDateFormat*>(format.get())) simple->toPattern(pattern);
  return withPlainBlanks(pattern);
}

bool isPatternLetter(char16_t unit) {
  return (unit >= u'a' && unit <= u'z') || (unit >= u'A' && unit <= u'Z');
}

/// The pattern's fields and what is between them. Words in quotes, as for "year", marks of the
/// writing direction and what follows the last field are left out, so that the text can be read
/// back.
icu::UnicodeString bareFields(const icu::UnicodeString& pattern) {
  icu::UnicodeString bare;
  bool quoted = false;
  for (int32_t at = 0; at < pattern.length(); ++at) {
    const char16_t unit = pattern[at];
    if (unit == u'\'') {
      quoted = !quoted;
    } else if (!quoted && unit != 0x200E && unit != 0x200F) {
      bare.append(unit);
    }
  }
  while (!bare.isEmpty() && !isPatternLetter(bare[bare.length() - 1])) {
    bare.truncate(bare.length() - 1);
  }
  return bare;
}

/// Every year with four digits; a short date must read back as the same day.
icu::UnicodeString withFullYear(const icu::UnicodeString& pattern) {
  icu::UnicodeString full;
  for (int32_t at = 0; at < pattern.length(); ++at) {
    if (pattern[at] != u'y') {
      full.append(pattern[at]);
    } else if (at == 0 || pattern[at - 1] != u'y') {
      full.append(u"yyyy");
    }
  }
  return full;
}

std::unique_ptr<icu::SimpleDateFormat> formatOf(const icu::UnicodeString& pattern,
                                                const icu::Locale& locale) {
  UErrorCode status = U_ZERO_ERROR;
  auto format = std::make_unique<icu::SimpleDateFormat>(pattern, locale, status);
  check(status);
  icu::GregorianCalendar calendar(*icu::TimeZone::getGMT(), locale, status);
  calendar.setGregorianChange(-DBL_MAX, status);
  check(status);
  format->setCalendar(calendar);
  return format;
}

std::string written(const icu::SimpleDateFormat& format, double milliseconds) {
  icu::UnicodeString text;
  return utf8(format.format(milliseconds, text));
}

double millisecondsOf(Date date) {
  const auto days = std::chrono::sys_days(date).time_since_epoch();
  return millisecondsPerDay * static_cast<double>(days.count());
}

}  // namespace

Formats::Formats(const icu::Locale& locale) {
  using icu::DateFormat;
  shortDatePattern_ = withFullYear(
      bareFields(patternOf(DateFormat::createDateInstance(DateFormat::kShort, locale))));
  shortDate_ = formatOf(shortDatePattern_, locale);
  shortTime_ = formatOf(
      bareFields(patternOf(DateFormat::createTimeInstance(DateFormat::kShort, locale))), locale);
  longDate_ =
      formatOf(patternOf(DateFormat::createDateInstance(DateFormat::kLong, locale)), locale);
}

std::string Formats::shortDate(Date date) const {
  return written(*shortDate_, millisecondsOf(date));
}

std::string Formats::shortTime(TimeOfDay time) const {
  return written(*shortTime_, 1000.0 * ((time.hour * 60 + time.minute) * 60 + time.second));
}

std::string Formats::longDate(Date date) const { return written(*longDate_, millisecondsOf(date)); }

DateOrder Formats::dateOrder() const {
  const int32_t day = shortDatePattern_.indexOf(u'd');
  const int32_t month = shortDatePattern_.indexOf(u'M');
  const int32_t year = shortDatePattern_.indexOf(u'y');
  if (year < day && year < month) return DateOrder::yearMonthDay;
  return month < day ? DateOrder::monthDayYear : DateOrder::dayMonthYear;
}

bool Formats::dotSeparatesDates() const { return shortDatePattern_.indexOf(u'.') >= 0; }

void readNumberFacts(const icu::Locale& locale, LocaleFacts& facts) {
  UErrorCode status = U_ZERO_ERROR;
  const icu::DecimalFormatSymbols symbols(locale, status);
  check(status);
  const auto symbol = [&](icu::DecimalFormatSymbols::ENumberFormatSymbol kind) {
    return utf8(symbols.getConstSymbol(kind));
  };
  facts.decimalSeparator = symbol(icu::DecimalFormatSymbols::kDecimalSeparatorSymbol);
  facts.currencySign = symbol(icu::DecimalFormatSymbols::kCurrencySymbol);
  const std::string group = symbol(icu::DecimalFormatSymbols::kGroupingSeparatorSymbol);
  const std::string blank = " ";
  const std::string noBreak = "\u00A0";
  const std::string narrow = "\u202F";
  if (group == blank || group == noBreak) {
    // Whoever types a number types the ordinary space.
    facts.groupSeparators = {noBreak, blank};
  } else if (group == narrow) {
    facts.groupSeparators = {narrow, noBreak, blank};
  } else {
    facts.groupSeparators = {group};
  }
}

}  // namespace awizo::icu_locale
