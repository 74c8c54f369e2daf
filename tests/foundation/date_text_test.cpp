#include "foundation/date_text.h"

#include "foundation/locale_facts.h"

namespace awizo::test {
namespace {

std::string read(std::string_view text, const LocaleFacts& facts) {
  const auto date = readDate(text, facts);
  return date ? isoDate(*date) : "none";
}

std::string russian(std::string_view text) { return read(text, russianFacts()); }
std::string american(std::string_view text) { return read(text, americanFacts()); }

TEST(ReadingADate, TheOrderOfTheLocaleComesFirst) {
  EXPECT_EQ(russian("11.10.2026"), "2026-10-11");
  EXPECT_EQ(american("11/10/2026"), "2026-11-10");
}

TEST(ReadingADate, ADayMonthYearLocaleTriesFourOrders) {
  EXPECT_EQ(russian("2020-01-11"), "2020-01-11");
  EXPECT_EQ(russian("02.13.1970"), "1970-02-13");
  EXPECT_EQ(russian("1970.13.02"), "1970-02-13");
  EXPECT_EQ(russian("2026.02.29"), "none");
  // The 30th of February isn't a day, the 20th of February 1930 is.
  EXPECT_EQ(russian("30.02.20"), "1930-02-20");
  EXPECT_EQ(russian("13.14.15"), "none");
}

TEST(ReadingADate, AMonthDayYearLocaleTriesThreeOrders) {
  EXPECT_EQ(american("2020-01-11"), "2020-01-11");
  EXPECT_EQ(american("13/02/1970"), "1970-02-13");
  EXPECT_EQ(american("1970/13/02"), "none");
}

TEST(ReadingADate, AYearMonthDayLocaleTriesThreeOrders) {
  const LocaleFacts facts{".", {","}, "", DateOrder::yearMonthDay, false};
  EXPECT_EQ(read("10-11-12", facts), "2010-11-12");
  EXPECT_EQ(read("11-10-2026", facts), "2026-11-10");
  EXPECT_EQ(read("21-10-2026", facts), "2026-10-21");
}

TEST(ReadingADate, TheSeparatorsMayBeMixed) {
  for (const char* text : {"21/11/2026", "21-11-2026", "21 11 2026", "21,11,2026", "21.11.2026",
                           "21/11-2026", "21, 11, 2026", " 21 . 11 . 2026 "}) {
    EXPECT_EQ(russian(text), "2026-11-21") << text;
  }
  for (const char* text : {"11/21/2026", "11-21-2026", "11 21 2026", "11,21,2026"}) {
    EXPECT_EQ(american(text), "2026-11-21") << text;
  }
}

TEST(ReadingADate, APointSeparatesOnlyWhereTheLocalesDatesUseIt) {
  EXPECT_EQ(american("11.21.2026"), "none");
}

TEST(ReadingADate, TwoDigitYearsLieBetween1930And2029) {
  EXPECT_EQ(russian("01.02.0"), "2000-02-01");
  EXPECT_EQ(russian("01.02.29"), "2029-02-01");
  EXPECT_EQ(russian("01.02.30"), "1930-02-01");
  EXPECT_EQ(american("02/01/99"), "1999-02-01");
}

TEST(ReadingADate, YearsRunFrom100To9999) {
  EXPECT_EQ(russian("01.02.100"), "0100-02-01");
  EXPECT_EQ(russian("31.12.9999"), "9999-12-31");
  EXPECT_EQ(russian("01.02.10000"), "none");
}

TEST(ReadingADate, AYearIsNeverTakenForADay) {
  // 2066 and 1810 are 18 more than a multiple of 256.
  EXPECT_EQ(russian("2066-01-21"), "2066-01-21");
  EXPECT_EQ(american("2066-01-21"), "2066-01-21");
  EXPECT_EQ(russian("1810-01-21"), "1810-01-21");
  EXPECT_EQ(american("2049-02-03"), "2049-02-03");
  EXPECT_EQ(russian("257.1.2026"), "none");
}

TEST(ReadingADate, LeapDays) {
  EXPECT_EQ(russian("29.02.2024"), "2024-02-29");
  EXPECT_EQ(russian("29.02.1900"), "none");
}

TEST(ReadingADate, ATimeBehindItIsLeftOut) {
  EXPECT_EQ(russian("21.11.2026 10:15"), "2026-11-21");
  EXPECT_EQ(american("11/21/2026 10:15:30 PM"), "2026-11-21");
}

TEST(ReadingADate, AnythingElseIsNone) {
  for (const char* text : {"", " ", "ABC", "21", "21.11", "21.11.", "..", "21..11.2026",
                           "-1.2.2026", "21.11.2026x", "21.11.2026 x", "2026-11-21T10:15", "10:15",
                           "0.1.2026", "21.11.2026 25:00", "21.11.2026.1"}) {
    EXPECT_EQ(russian(text), "none") << text;
    EXPECT_EQ(american(text), "none") << text;
  }
}

std::string time(std::string_view text) {
  const auto found = readTime(text, russianFacts());
  return found ? hourMinute(*found) + ":" + std::to_string(found->second) : "none";
}

TEST(ReadingATime, HourMinuteAndPerhapsSecond) {
  EXPECT_EQ(time("10:15"), "10:15:0");
  EXPECT_EQ(time(" 9:05 "), "09:05:0");
  EXPECT_EQ(time("23:59:58"), "23:59:58");
  EXPECT_EQ(time("00:00"), "00:00:0");
}

TEST(ReadingATime, HalvesOfTheDay) {
  EXPECT_EQ(time("10:15 AM"), "10:15:0");
  EXPECT_EQ(time("10:15 PM"), "22:15:0");
  EXPECT_EQ(time("12:00 AM"), "00:00:0");
  EXPECT_EQ(time("12:00 pm"), "12:00:0");
  EXPECT_EQ(time("13:00 PM"), "none");
}

TEST(ReadingATime, ADateInFrontIsLeftOut) { EXPECT_EQ(time("21.11.2026 10:15"), "10:15:0"); }

TEST(ReadingATime, AnythingElseIsNone) {
  for (const char* text : {"", "10", "10:", ":15", "24:00", "10:60", "10:15:60", "10:15x", "ABC",
                           "21.11.2026", "10:15:30:40"}) {
    EXPECT_EQ(time(text), "none") << text;
  }
}

TEST(MonthArithmetic, ADayPastTheEndGoesToTheLastDay) {
  EXPECT_EQ(plusMonths(makeDate(2026, 1, 31), 1), makeDate(2026, 2, 28));
  EXPECT_EQ(plusMonths(makeDate(2024, 1, 31), 1), makeDate(2024, 2, 29));
  EXPECT_EQ(plusMonths(makeDate(2026, 3, 31), -1), makeDate(2026, 2, 28));
  EXPECT_EQ(plusMonths(makeDate(2026, 11, 30), 14), makeDate(2028, 1, 30));
}

TEST(DateArithmetic, OutsideTheYears100To9999ThereIsNone) {
  EXPECT_EQ(plusMonths(makeDate(9999, 12, 1), 1), std::nullopt);
  EXPECT_EQ(plusMonths(makeDate(100, 1, 31), -1), std::nullopt);
  EXPECT_EQ(plusDays(makeDate(9999, 12, 31), 1), std::nullopt);
  EXPECT_EQ(plusDays(makeDate(100, 1, 1), -1), std::nullopt);
  EXPECT_EQ(plusDays(makeDate(2026, 12, 31), 1), makeDate(2027, 1, 1));
  EXPECT_EQ(plusMonths(makeDate(9999, 1, 1), 32767), std::nullopt);
}

}  // namespace
}  // namespace awizo::test
