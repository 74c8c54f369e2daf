#include <cstdlib>

#include "adapters/icu/icu_locale.h"

namespace awizo {
namespace {

using testing::ElementsAre;
using testing::UnorderedElementsAre;

/// Sets an environment variable for the time of a test.
class Variable {
 public:
  Variable(const char* name, const char* value) : name_(name) {
    if (const char* old = std::getenv(name)) old_ = old;
    value ? setenv(name, value, 1) : unsetenv(name);
  }
  ~Variable() { old_.empty() ? unsetenv(name_) : setenv(name_, old_.c_str(), 1); }
  Variable(const Variable&) = delete;
  Variable& operator=(const Variable&) = delete;

 private:
  const char* name_;
  std::string old_;
};

const IcuLocale& russian() {
  static const IcuLocale locale("ru_RU");
  return locale;
}

const IcuLocale& american() {
  static const IcuLocale locale("en_US");
  return locale;
}

TEST(Facts, RussianNumbersHaveACommaAndBlanksBetweenGroups) {
  EXPECT_EQ(russian().facts().decimalSeparator, ",");
  EXPECT_THAT(russian().facts().groupSeparators, UnorderedElementsAre(" ", "\u00A0"));
  EXPECT_EQ(russian().facts().currencySign, "₽");
}

TEST(Facts, ANarrowBlankStandsBetweenGroupsOnlyWhereItIsTheLocalesOwn) {
  EXPECT_THAT(IcuLocale("fr_FR").facts().groupSeparators,
              UnorderedElementsAre(" ", "\u00A0", "\u202F"));
}

TEST(Facts, AmericanNumbersHaveAPointAndCommasBetweenGroups) {
  EXPECT_EQ(american().facts().decimalSeparator, ".");
  EXPECT_THAT(american().facts().groupSeparators, ElementsAre(","));
  EXPECT_EQ(american().facts().currencySign, "$");
}

TEST(Facts, OrderAndSeparatorOfShortDates) {
  EXPECT_EQ(russian().facts().dateOrder, DateOrder::dayMonthYear);
  EXPECT_TRUE(russian().facts().dotSeparatesDates);
  EXPECT_EQ(american().facts().dateOrder, DateOrder::monthDayYear);
  EXPECT_FALSE(american().facts().dotSeparatesDates);
  EXPECT_EQ(IcuLocale("zh_CN").facts().dateOrder, DateOrder::yearMonthDay);
}

TEST(Dates, ShortDateHasFourDigitsOfTheYear) {
  EXPECT_EQ(russian().shortDate(makeDate(2026, 11, 21)), "21.11.2026");
  EXPECT_EQ(russian().shortDate(makeDate(2026, 1, 5)), "05.01.2026");
  EXPECT_EQ(american().shortDate(makeDate(2026, 11, 21)), "11/21/2026");
  EXPECT_EQ(american().shortDate(makeDate(2026, 1, 5)), "1/5/2026");
  EXPECT_EQ(IcuLocale("de_DE").shortDate(makeDate(2026, 1, 5)), "05.01.2026");
}

TEST(Dates, AnyDayFromYear100To9999IsTheGregorianOne) {
  EXPECT_EQ(russian().shortDate(makeDate(100, 1, 1)), "01.01.0100");
  EXPECT_EQ(russian().shortDate(makeDate(1582, 10, 10)), "10.10.1582");
  EXPECT_EQ(russian().shortDate(makeDate(1601, 1, 1)), "01.01.1601");
  EXPECT_EQ(american().shortDate(makeDate(9999, 12, 31)), "12/31/9999");
}

TEST(Dates, WordsOfAShortDateFallAwaySoThatItReadsBack) {
  EXPECT_EQ(IcuLocale("bg_BG").shortDate(makeDate(2026, 1, 5)), "5.01.2026");
  EXPECT_EQ(IcuLocale("bg_BG").shortTime({10, 15, 0}), "10:15");
}

TEST(Dates, OtherCalendarsAndDigitsAreNotUsed) {
  EXPECT_EQ(IcuLocale("th_TH").shortDate(makeDate(2026, 11, 21)), "21/11/2026");
  EXPECT_EQ(IcuLocale("fa_IR").shortDate(makeDate(2026, 11, 21)), "2026/11/21");
  EXPECT_EQ(IcuLocale("ar_EG").shortDate(makeDate(2026, 11, 21)), "21/11/2026");
}

TEST(Dates, LongDate) {
  EXPECT_EQ(russian().longDate(makeDate(2026, 11, 21)), "21 ноября 2026 г.");
  EXPECT_EQ(american().longDate(makeDate(2026, 11, 21)), "November 21, 2026");
}

TEST(Times, ShortTime) {
  EXPECT_EQ(russian().shortTime({10, 15, 59}), "10:15");
  EXPECT_EQ(russian().shortTime({0, 5, 0}), "00:05");
  EXPECT_EQ(russian().shortTime({23, 59, 0}), "23:59");
}

TEST(Times, AmericanTimeHasAPlainBlankBeforeItsHalfOfTheDay) {
  EXPECT_EQ(american().shortTime({10, 15, 0}), "10:15 AM");
  EXPECT_EQ(american().shortTime({0, 5, 0}), "12:05 AM");
  EXPECT_EQ(american().shortTime({22, 15, 0}), "10:15 PM");
}

TEST(Names, CodesetAndModifierPlayNoPart) {
  EXPECT_EQ(IcuLocale("en_US.UTF-8").facts().decimalSeparator, ".");
  EXPECT_EQ(IcuLocale("de_DE@euro").facts().decimalSeparator, ",");
}

TEST(Names, ALocaleThatNamesNoneIsRussian) {
  for (const char* name : {"", "C", "POSIX", "C.UTF-8", "xx_YY", "nonsense"}) {
    EXPECT_EQ(IcuLocale(name).shortDate(makeDate(2026, 11, 21)), "21.11.2026") << name;
    EXPECT_EQ(IcuLocale(name).facts().decimalSeparator, ",") << name;
  }
}

TEST(Names, TheEnvironmentNamesTheLocale) {
  const Variable all("LC_ALL", nullptr);
  const Variable numeric("LC_NUMERIC", "");
  const Variable lang("LANG", "en_US.UTF-8");
  EXPECT_EQ(IcuLocale::environmentName(), "en_US.UTF-8");
  const Variable strongerNumeric("LC_NUMERIC", "de_DE");
  EXPECT_EQ(IcuLocale::environmentName(), "de_DE");
  const Variable strongestAll("LC_ALL", "ru_RU.UTF-8");
  EXPECT_EQ(IcuLocale::environmentName(), "ru_RU.UTF-8");
}

TEST(Names, AnEnvironmentWithoutALocaleNamesNone) {
  const Variable all("LC_ALL", nullptr);
  const Variable numeric("LC_NUMERIC", nullptr);
  const Variable lang("LANG", nullptr);
  EXPECT_EQ(IcuLocale::environmentName(), "");
}

TEST(Case, CoversCyrillicWithYo) {
  EXPECT_EQ(russian().upper("Ёлка, ёж и 1 Box"), "ЁЛКА, ЁЖ И 1 BOX");
  EXPECT_EQ(russian().lower("ЁЛКА, ЁЖ И 1 BOX"), "ёлка, ёж и 1 box");
  EXPECT_EQ(american().upper("щи"), "ЩИ");
}

TEST(Case, KeepsTheNumberOfCharacters) {
  EXPECT_EQ(russian().upper("ﬁ, Straße, ё"), "ﬁ, STRAßE, Ё");
  EXPECT_EQ(russian().lower("İ, Ё"), "İ, ё");
}

TEST(Case, IsAllThatIsIgnored) {
  EXPECT_TRUE(russian().sameIgnoringCase("Ёлка №1", "ёЛКА №1"));
  for (const char* other : {"Паллета No1", "Паллета №1\u200B", "Паллета №¹", "Паллета\u00A0№1"}) {
    EXPECT_FALSE(russian().sameIgnoringCase("Паллета №1", other)) << other;
  }
}

TEST(Case, FollowsTheLocale) {
  EXPECT_EQ(american().upper("i"), "I");
  EXPECT_EQ(IcuLocale("tr_TR").upper("i"), "İ");
}

TEST(SingleByte, RussianIsWindows1251) {
  EXPECT_EQ(russian().toSingleByte("Ёж №1"), "\xA8\xE6 \xB9\x31");
  EXPECT_EQ(russian().fromSingleByte("\xA8\xE6 \xB9\x31"), "Ёж №1");
  for (const char* name : {"uk_UA", "be_BY", "bg_BG", "sr_RS", "mk_MK", "kk_KZ"}) {
    EXPECT_EQ(IcuLocale(name).toSingleByte("ж"), "\xE6") << name;
  }
}

TEST(SingleByte, WesternIsWindows1252) {
  EXPECT_EQ(american().toSingleByte("é €"), "\xE9 \x80");
  EXPECT_EQ(american().fromSingleByte("\xE9 \x80"), "é €");
  EXPECT_EQ(IcuLocale("sr_RS@latin").toSingleByte("é"), "\xE9");
}

TEST(SingleByte, WhatTheEncodingLacksIsAQuestionMark) {
  EXPECT_EQ(russian().toSingleByte("é日😀."), "???.");
  EXPECT_EQ(american().toSingleByte("Ёж 1"), "?? 1");
  EXPECT_EQ(russian().toSingleByte("a\xFF\xC3"), "a??");
}

TEST(SingleByte, EveryByteComesBack) {
  std::string bytes;
  for (int code = 0; code < 256; ++code) bytes += static_cast<char>(code);
  EXPECT_EQ(russian().toSingleByte(russian().fromSingleByte(bytes)), bytes);
  EXPECT_EQ(american().toSingleByte(american().fromSingleByte(bytes)), bytes);
}

}  // namespace
}  // namespace awizo
