#include "foundation/number_text.h"

#include <cmath>
#include <limits>
#include <random>

#include "foundation/locale_facts.h"

namespace awizo::test {
namespace {

constexpr double none = std::numeric_limits<double>::quiet_NaN();

double numberOf(std::string_view text, const LocaleFacts& facts) {
  const auto number = readNumber(text, facts);
  return number ? toFloating(*number) : none;
}

double russianNumber(std::string_view text) { return numberOf(text, russianFacts()); }
double americanNumber(std::string_view text) { return numberOf(text, americanFacts()); }
bool refusedByBoth(std::string_view text) {
  return std::isnan(russianNumber(text)) && std::isnan(americanNumber(text));
}

TEST(ReadingANumber, BlanksOfEveryKindMayStandAround) {
  EXPECT_EQ(russianNumber(" \u00A0\t\r\n5 \u00A0\t\r\n"), 5);
  EXPECT_EQ(americanNumber(" \u00A0\t\r\n5 \u00A0\t\r\n"), 5);
}

TEST(ReadingANumber, TheEmptyTextAndBlanksAloneAreNone) {
  EXPECT_TRUE(refusedByBoth(""));
  EXPECT_TRUE(refusedByBoth("  "));
  EXPECT_TRUE(refusedByBoth("\u00A0\t\r\n"));
}

TEST(ReadingANumber, WordsAndStrayCharactersAreNone) {
  EXPECT_TRUE(refusedByBoth("ABC"));
  EXPECT_TRUE(refusedByBoth("5x"));
  EXPECT_TRUE(refusedByBoth("x5"));
  EXPECT_TRUE(refusedByBoth("inf"));
  EXPECT_TRUE(refusedByBoth("nan"));
  EXPECT_TRUE(refusedByBoth("\xFF\xFE"));
  EXPECT_TRUE(refusedByBoth(std::string_view("5\0", 2)));
}

TEST(ReadingANumber, OneSignMayLeadOrTrail) {
  EXPECT_EQ(russianNumber("-5"), -5);
  EXPECT_EQ(russianNumber("+5"), 5);
  EXPECT_EQ(russianNumber("5-"), -5);
  EXPECT_EQ(russianNumber("5+"), 5);
  EXPECT_EQ(russianNumber(" - 5"), -5);
  EXPECT_EQ(americanNumber("5 - "), -5);
  EXPECT_TRUE(refusedByBoth("-5-"));
  EXPECT_TRUE(refusedByBoth("+5-"));
  EXPECT_TRUE(refusedByBoth("--5"));
  EXPECT_TRUE(refusedByBoth("5--"));
  EXPECT_TRUE(refusedByBoth("+-5"));
  EXPECT_TRUE(refusedByBoth("-"));
  EXPECT_TRUE(refusedByBoth("5-5"));
}

TEST(ReadingANumber, ParenthesesMakeANegative) {
  EXPECT_EQ(russianNumber("(5)"), -5);
  EXPECT_EQ(americanNumber(" ( 5 ) "), -5);
  EXPECT_TRUE(refusedByBoth("(5"));
  EXPECT_TRUE(refusedByBoth("5)"));
  EXPECT_TRUE(refusedByBoth("((5))"));
  EXPECT_TRUE(refusedByBoth("(5))"));
  EXPECT_TRUE(refusedByBoth("-(5)"));
  EXPECT_TRUE(refusedByBoth("(-5)"));
  EXPECT_TRUE(refusedByBoth("(5)-"));
  EXPECT_TRUE(refusedByBoth("()"));
}

TEST(ReadingANumber, TheCurrencySignOfTheLocaleMayLeadOrTrail) {
  EXPECT_EQ(russianNumber("5 ₽"), 5);
  EXPECT_EQ(russianNumber("₽5"), 5);
  EXPECT_EQ(americanNumber("$ 5"), 5);
  EXPECT_EQ(americanNumber("5$"), 5);
  EXPECT_EQ(americanNumber("-$5"), -5);
  EXPECT_EQ(americanNumber("$-5"), -5);
  EXPECT_EQ(americanNumber("($5)"), -5);
  EXPECT_TRUE(std::isnan(russianNumber("$5")));
  EXPECT_TRUE(std::isnan(americanNumber("5 ₽")));
  EXPECT_TRUE(std::isnan(americanNumber("$5$")));
  EXPECT_TRUE(std::isnan(americanNumber("$")));
}

TEST(ReadingANumber, GroupSeparatorsMayStandAnywhereAfterTheFirstDigit) {
  EXPECT_EQ(russianNumber("1 000"), 1000);
  EXPECT_EQ(russianNumber("1  000,5"), 1000.5);
  EXPECT_EQ(russianNumber("1\u00A0000"), 1000);
  EXPECT_EQ(americanNumber("1,000"), 1000);
  EXPECT_EQ(americanNumber("1,,0,00.5"), 1000.5);
  EXPECT_EQ(americanNumber("1,5"), 15);
  EXPECT_EQ(americanNumber("1,"), 1);
}

TEST(ReadingANumber, AGroupSeparatorNeverStandsBeforeTheFirstDigit) {
  EXPECT_TRUE(std::isnan(americanNumber(",5")));
  EXPECT_TRUE(std::isnan(americanNumber(".,5")));
}

TEST(ReadingANumber, ABlankGroupsOnlyWhereTheLocaleSaysSo) {
  EXPECT_TRUE(std::isnan(americanNumber("1 000")));
}

TEST(ReadingANumber, TheDecimalSeparatorAloneIsNone) {
  EXPECT_TRUE(refusedByBoth(","));
  EXPECT_TRUE(refusedByBoth("."));
  EXPECT_EQ(russianNumber(",5"), 0.5);
  EXPECT_EQ(russianNumber("5,"), 5);
  EXPECT_EQ(americanNumber(".5"), 0.5);
  EXPECT_EQ(americanNumber("5."), 5);
}

TEST(ReadingANumber, OnlyTheDecimalSeparatorOfTheLocaleCountsAndOnce) {
  EXPECT_TRUE(std::isnan(russianNumber("1.5")));
  EXPECT_TRUE(std::isnan(russianNumber("1,5,0")));
  EXPECT_TRUE(std::isnan(americanNumber("1.5.0")));
}

TEST(ReadingANumber, AnExponentNeedsDigits) {
  EXPECT_EQ(russianNumber("1e3"), 1000);
  EXPECT_EQ(russianNumber("1E+3"), 1000);
  EXPECT_EQ(russianNumber("1,5e-1"), 0.15);
  EXPECT_EQ(americanNumber("1.5E2-"), -150);
  EXPECT_TRUE(refusedByBoth("1e"));
  EXPECT_TRUE(refusedByBoth("1e+"));
  EXPECT_TRUE(refusedByBoth("e3"));
  EXPECT_TRUE(refusedByBoth("1e3e3"));
  EXPECT_TRUE(refusedByBoth("1e--3"));
  for (const char* text : {"1e ", "1e+ ", "1e-", "1e -", "(1e)", "1ex", "1e3x", "1e 3", "$1e"}) {
    EXPECT_TRUE(refusedByBoth(text)) << text;
  }
}

TEST(ReadingANumber, HexadecimalAndOctal) {
  EXPECT_EQ(russianNumber("&H10"), 16);
  EXPECT_EQ(americanNumber(" &hFf "), 255);
  EXPECT_EQ(russianNumber("&O17"), 15);
  EXPECT_EQ(americanNumber("&o17"), 15);
  EXPECT_TRUE(refusedByBoth("&H"));
  EXPECT_TRUE(refusedByBoth("&HG"));
  EXPECT_TRUE(refusedByBoth("&O8"));
  EXPECT_TRUE(refusedByBoth("&H-1"));
  EXPECT_TRUE(refusedByBoth("&"));
  EXPECT_TRUE(refusedByBoth("&10"));
  EXPECT_TRUE(refusedByBoth("&H11111111111111111"));
}

TEST(ReadingANumber, BeyondTheRangeOfAFloatingNumberItIsNone) {
  EXPECT_EQ(russianNumber("1e308"), 1e308);
  EXPECT_TRUE(refusedByBoth("1e309"));
  EXPECT_TRUE(refusedByBoth("1e999999999999"));
  EXPECT_TRUE(refusedByBoth(std::string(400, '9')));
  EXPECT_EQ(russianNumber("1e-400"), 0);
  EXPECT_EQ(russianNumber("1e-999999999999"), 0);
  EXPECT_EQ(russianNumber("0e999999999999"), 0);
}

TEST(ReadingANumber, AMillionDigitsAreReadInOneWalk) {
  EXPECT_EQ(russianNumber("0," + std::string(1000000, '0') + "1"), 0);
  EXPECT_EQ(russianNumber(std::string(1000000, '0') + "7"), 7);
}

std::string fixed(std::string_view text, int decimals) {
  return fixedText(readNumber(text, russianFacts()).value(), decimals, ",");
}

TEST(FixedText, RoundsHalfAwayFromZeroOnTheDigits) {
  EXPECT_EQ(fixed("1,0005", 3), "1,001");
  EXPECT_EQ(fixed("-1,0005", 3), "-1,001");
  EXPECT_EQ(fixed("1,0004999999999999999999", 3), "1,000");
  EXPECT_EQ(fixed("2,675", 2), "2,68");
  EXPECT_EQ(fixed("1,005", 2), "1,01");
  EXPECT_EQ(fixed("0,5", 0), "1");
  EXPECT_EQ(fixed("0,4", 0), "0");
  EXPECT_EQ(fixed("9,9995", 3), "10,000");
  EXPECT_EQ(fixed("99,5", 0), "100");
  EXPECT_EQ(fixed("0,09995", 3), "0,100");
}

TEST(FixedText, KeepsALeadingZeroAndFillsTheDecimals) {
  EXPECT_EQ(fixed(",5", 3), "0,500");
  EXPECT_EQ(fixed("5", 3), "5,000");
  EXPECT_EQ(fixed("0", 2), "0,00");
  EXPECT_EQ(fixed("007", 0), "7");
  EXPECT_EQ(fixed("0,0001", 3), "0,000");
}

TEST(FixedText, WritesMoreThanThirteenDigitsWhole) {
  EXPECT_EQ(fixed("12345678901234567890,12345", 3), "12345678901234567890,123");
}

TEST(FixedText, NeverHasAnExponent) {
  EXPECT_EQ(fixed("1,5e20", 2), "150000000000000000000,00");
  EXPECT_EQ(fixed("12345e-2", 1), "123,5");
  EXPECT_EQ(fixed("5e-4", 3), "0,001");
  EXPECT_EQ(fixed("5e-5", 3), "0,000");
  EXPECT_EQ(fixed("1e300", 0), "1" + std::string(300, '0'));
}

TEST(FixedText, NeverHasGroups) { EXPECT_EQ(fixed("1 234 567,5", 1), "1234567,5"); }

TEST(FixedText, ANegativeThatRoundsToZeroKeepsItsSign) {
  EXPECT_EQ(fixed("-0,0001", 3), "-0,000");
  EXPECT_EQ(fixed("-0,000", 3), "-0,000");
}

TEST(FloatingText, HasFifteenSignificantDigitsAndNoTrailingZeros) {
  EXPECT_EQ(floatingText(0.5, ","), "0,5");
  EXPECT_EQ(floatingText(0.1 + 0.2, ","), "0,3");
  EXPECT_EQ(floatingText(1.0 / 3, "."), "0.333333333333333");
  EXPECT_EQ(floatingText(-2.5, ","), "-2,5");
  EXPECT_EQ(floatingText(100, ","), "100");
  EXPECT_EQ(floatingText(1423, ","), "1423");
  EXPECT_EQ(floatingText(0.001, ","), "0,001");
}

TEST(FloatingText, TakesAnExponentFromFifteenZerosOn) {
  EXPECT_EQ(floatingText(123456789012345, ","), "123456789012345");
  EXPECT_EQ(floatingText(999999999999999, ","), "999999999999999");
  EXPECT_EQ(floatingText(1e15, ","), "1E+15");
  EXPECT_EQ(floatingText(-1.5e20, ","), "-1,5E+20");
  EXPECT_EQ(floatingText(1.5e300, "."), "1.5E+300");
  EXPECT_EQ(floatingText(0.1 + 0.2 - 0.3, ","), "5,55111512312578E-17");
}

TEST(FloatingText, NegativeZeroIsZero) { EXPECT_EQ(floatingText(-0.0, ","), "0"); }

TEST(PlainValue, IsTheSameNumberToTheLastBit) {
  std::mt19937 random(2026);
  const auto below = [&](std::size_t count) {
    return static_cast<int>(std::uniform_int_distribution<std::size_t>(0, count - 1)(random));
  };
  for (const LocaleFacts& facts : {russianFacts(), americanFacts()}) {
    int plain = 0;
    for (int i = 0; i < 20'000; ++i) {
      std::string text;
      for (int left = 1 + below(17); left > 0; --left) text += static_cast<char>('0' + below(10));
      if (below(4) != 0) {
        text.insert(static_cast<std::size_t>(below(text.size() + 1)), facts.decimalSeparator);
      }
      const std::optional<double> value = plainValue(text, facts);
      plain += value ? 1 : 0;
      EXPECT_EQ(value.value_or(numberOf(text, facts)), numberOf(text, facts)) << text;
    }
    EXPECT_GT(plain, 15'000);
  }
}

TEST(PlainValue, IsNoneOfWhatMayBeReadInOtherWays) {
  for (const char* text : {"", ",", "1,2,3", "1.5", "-1", "1 ", "1e2", "1234567890123456", "x"}) {
    EXPECT_EQ(plainValue(text, russianFacts()), std::nullopt) << text;
  }
  EXPECT_EQ(plainValue(",5", russianFacts()), 0.5);
  EXPECT_EQ(plainValue("5,", russianFacts()), 5);
}

}  // namespace
}  // namespace awizo::test
