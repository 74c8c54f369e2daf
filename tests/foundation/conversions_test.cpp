#include "foundation/conversions.h"

#include "foundation/date_text.h"
#include "foundation/session.h"
#include "support/error_of.h"

namespace awizo::test {
namespace {

class ConversionsTest : public testing::Test {
 protected:
  Session russian{"ru_RU"};
  Session american{"en_US"};
  const Conversions& ru = russian.conversions;
  const Conversions& us = american.conversions;
};

TEST_F(ConversionsTest, TheDecimalSeparatorIsTheLocales) {
  EXPECT_EQ(ru.GetDecimalSeparator(), ",");
  EXPECT_EQ(us.GetDecimalSeparator(), ".");
}

TEST_F(ConversionsTest, BeforeTheSeparatorIsKnownCommasAndPointsAreDropped) {
  const std::string unknown;
  const Conversions early(russian.locale, unknown);
  EXPECT_EQ(early.NormalizeDecimal("1,5", 2), "15,00");
  EXPECT_EQ(early.FormatForXml("1,5", 2), "1,50");
}

TEST_F(ConversionsTest, CommasAndPointsAreReplacedOverTheWholeText) {
  EXPECT_EQ(Conversions::CommaToDot("1,2,3.4"), "1.2.3.4");
  EXPECT_EQ(Conversions::DotToComma("1,2,3.4"), "1,2,3,4");
  EXPECT_EQ(Conversions::CommaToDot(""), "");
}

TEST_F(ConversionsTest, FormatFixedWritesThatManyDecimals) {
  EXPECT_EQ(ru.FormatFixed("12", 3), "12,000");
  EXPECT_EQ(us.FormatFixed("12", 3), "12.000");
  EXPECT_EQ(ru.FormatFixed("0,5", 0), "1");
  EXPECT_EQ(ru.FormatFixed("0,4", 0), "0");
  EXPECT_EQ(us.FormatFixed(".5", 2), "0.50");
  EXPECT_EQ(us.FormatFixed("2.5", 0), "3");
  EXPECT_EQ(ru.FormatFixed("123456789012345678,125", 2), "123456789012345678,13");
}

TEST_F(ConversionsTest, FormatFixedReadsGroupsSignsAndExponents) {
  EXPECT_EQ(ru.FormatFixed("1 000,5", 2), "1000,50");
  EXPECT_EQ(us.FormatFixed("1,000.5", 2), "1000.50");
  EXPECT_EQ(us.FormatFixed("1,5", 1), "15.0");
  EXPECT_EQ(ru.FormatFixed("5-", 1), "-5,0");
  EXPECT_EQ(ru.FormatFixed("1E+15", 2), "1000000000000000,00");
  EXPECT_EQ(ru.FormatFixed("-0,0001", 3), "-0,000");
}

TEST_F(ConversionsTest, FormatFixedRefusesFewerThanNoDecimals) {
  for (const char* text : {"12", "", "ABC"}) {
    EXPECT_EQ(errorNumberOf([&] { ru.FormatFixed(text, -1); }), 5) << text;
  }
}

TEST_F(ConversionsTest, FormatFixedOfZeroIsZeroWhateverItsExponent) {
  EXPECT_EQ(ru.FormatFixed("0e4001", 0), "0");
  EXPECT_EQ(us.FormatFixed("0.00E+99999999", 2), "0.00");
  EXPECT_EQ(us.FormatFixed("0e-5", 3), "0.000");
}

TEST_F(ConversionsTest, FormatFixedPassesOnWhatIsNoNumber) {
  EXPECT_EQ(ru.FormatFixed("", 3), "");
  EXPECT_EQ(ru.FormatFixed("ABC", 3), "ABC");
  EXPECT_EQ(ru.FormatFixed(" ", 3), " ");
  EXPECT_EQ(ru.FormatFixed("1.5", 3), "1.5");
  EXPECT_EQ(us.FormatFixed("1.5.0", 3), "1.5.0");
  EXPECT_EQ(us.FormatFixed("1e400", 3), "1e400");
}

TEST_F(ConversionsTest, NormalizeDecimalTakesBothSeparatorsInEveryLocale) {
  for (const char* typed : {"1,5", "1.5"}) {
    EXPECT_EQ(ru.NormalizeDecimal(typed, 3), "1,500");
    EXPECT_EQ(us.NormalizeDecimal(typed, 3), "1.500");
  }
}

TEST_F(ConversionsTest, NormalizeDecimalOfBothSeparatorsIsNoNumberAnyMore) {
  EXPECT_EQ(ru.NormalizeDecimal("1,000.5", 3), "1,000,5");
  EXPECT_EQ(us.NormalizeDecimal("1,000.5", 3), "1.000.5");
}

TEST_F(ConversionsTest, NormalizeDecimalPassesOnWhatIsNoNumber) {
  EXPECT_EQ(ru.NormalizeDecimal("", 2), "");
  EXPECT_EQ(us.NormalizeDecimal("шт.", 2), "шт.");
  EXPECT_EQ(ru.NormalizeDecimal("шт.", 2), "шт,");
}

TEST_F(ConversionsTest, FormatForXmlHasAPoint) {
  EXPECT_EQ(ru.FormatForXml("12", 2), "12.00");
  EXPECT_EQ(us.FormatForXml("12", 2), "12.00");
}

TEST_F(ConversionsTest, FormatForXmlMarksAnEmptyValue) { EXPECT_EQ(ru.FormatForXml("", 3), "-1"); }

TEST_F(ConversionsTest, FormatForXmlPassesOnWhatIsNoNumber) {
  EXPECT_EQ(ru.FormatForXml("ABC", 3), "ABC");
  EXPECT_EQ(ru.FormatForXml("1,2,3", 3), "1.2.3");
}

TEST_F(ConversionsTest, MyDoubleIsRoundedToThreeDecimals) {
  for (const char* typed : {"1,23456", "1.23456"}) {
    EXPECT_EQ(ru.MyDouble(typed), 1.235);
    EXPECT_EQ(us.MyDouble(typed), 1.235);
  }
  EXPECT_EQ(ru.MyDouble("-0,0015"), -0.002);
}

TEST_F(ConversionsTest, MyDoubleOfNoNumberIsZero) {
  EXPECT_EQ(ru.MyDouble(""), 0);
  EXPECT_EQ(ru.MyDouble("ABC"), 0);
  EXPECT_EQ(us.MyDouble("1,000.5"), 0);
  EXPECT_EQ(us.MyDouble("1e400"), 0);
}

TEST_F(ConversionsTest, MultiplyToAmountRoundsThePriceToTwoDecimalsFirst) {
  EXPECT_EQ(ru.MultiplyToAmount("2,5", "1,999"), "5.00");
  EXPECT_EQ(us.MultiplyToAmount("2,5", "1,999"), "5.00");
  EXPECT_EQ(us.MultiplyToAmount("2.5", "1.999"), "5.00");
  EXPECT_EQ(ru.MultiplyToAmount("0,0005", "1000"), "1.00") << "the quantity is rounded to three";
}

TEST_F(ConversionsTest, MultiplyToAmountRoundsTheProductOnFifteenDigits) {
  // As binary numbers both products lie a little below the half.
  EXPECT_EQ(ru.MultiplyToAmount("0,5", "2,01"), "1.01");
  EXPECT_EQ(us.MultiplyToAmount("1.005", "1"), "1.01");
}

TEST_F(ConversionsTest, MultiplyToAmountOfALargeProductHasNoExponent) {
  EXPECT_EQ(ru.MultiplyToAmount("1000000000", "10000000"), "10000000000000000.00");
}

TEST_F(ConversionsTest, MultiplyToAmountOfNoNumberIsEmpty) {
  EXPECT_EQ(ru.MultiplyToAmount("", "1"), "");
  EXPECT_EQ(ru.MultiplyToAmount("1", ""), "");
  EXPECT_EQ(us.MultiplyToAmount("ABC", "1"), "");
  EXPECT_EQ(us.MultiplyToAmount("1e200", "1e200"), "");
}

TEST_F(ConversionsTest, MultiplyToAmountLeavesTheCallersTexts) {
  std::string quantity = "2.5";
  ru.MultiplyToAmount(quantity, "1");
  EXPECT_EQ(quantity, "2.5");
}

TEST_F(ConversionsTest, DatesAndTimesOfDocuments) {
  EXPECT_EQ(Conversions::FormatDateIso(makeDate(2026, 1, 5)), "2026-01-05");
  EXPECT_EQ(Conversions::FormatDateIso(makeDate(100, 12, 31)), "0100-12-31");
  EXPECT_EQ(Conversions::FormatTimeHm({9, 5, 59}), "09:05");
  EXPECT_EQ(Conversions::FormatTimeHm({22, 15}), "22:15");
}

TEST_F(ConversionsTest, APeriodOfMonthsEndsOnTheLastDayWhereTheMonthIsShorter) {
  EXPECT_EQ(ru.AddPeriodToDate(makeDate(2026, 1, 31), "1", "802"), "2026-02-28");
  EXPECT_EQ(us.AddPeriodToDate(makeDate(2024, 1, 31), "1", "802"), "2024-02-29");
  EXPECT_EQ(us.AddPeriodToDate(makeDate(2026, 3, 31), "-1", "802"), "2026-02-28");
}

TEST_F(ConversionsTest, APeriodOfWeeksOrDays) {
  EXPECT_EQ(ru.AddPeriodToDate(makeDate(2026, 11, 21), "2", "803"), "2026-12-05");
  EXPECT_EQ(ru.AddPeriodToDate(makeDate(2026, 11, 21), "10", "804"), "2026-12-01");
  EXPECT_EQ(us.AddPeriodToDate(makeDate(2026, 11, 21), "-21", "804"), "2026-10-31");
}

TEST_F(ConversionsTest, AnyOtherPeriodCodeLeavesTheDate) {
  EXPECT_EQ(ru.AddPeriodToDate(makeDate(2026, 11, 21), "5", "805"), "2026-11-21");
  EXPECT_EQ(ru.AddPeriodToDate(makeDate(2026, 11, 21), "5", ""), "2026-11-21");
  EXPECT_EQ(ru.AddPeriodToDate(makeDate(2026, 11, 21), "5", "802 "), "2026-11-21");
}

TEST_F(ConversionsTest, ACountThatIsNoWholeNumberGivesNoDate) {
  const Date day = makeDate(2026, 11, 21);
  EXPECT_EQ(ru.AddPeriodToDate(day, "", "802"), "");
  EXPECT_EQ(ru.AddPeriodToDate(day, "ABC", "804"), "");
  EXPECT_EQ(ru.AddPeriodToDate(day, "1,5", "802"), "");
  EXPECT_EQ(us.AddPeriodToDate(day, "1.5", "802"), "");
  EXPECT_EQ(ru.AddPeriodToDate(day, "", "805"), "") << "also where the code adds nothing";
}

TEST_F(ConversionsTest, ACountBeyondSixteenBitsGivesNoDate) {
  const Date day = makeDate(2026, 11, 21);
  EXPECT_EQ(ru.AddPeriodToDate(day, "32767", "804"), "2116-08-08");
  EXPECT_EQ(ru.AddPeriodToDate(day, "32768", "804"), "");
  EXPECT_EQ(ru.AddPeriodToDate(day, "-32768", "804"), "1937-03-05");
  EXPECT_EQ(ru.AddPeriodToDate(day, "-32769", "804"), "");
  EXPECT_EQ(us.AddPeriodToDate(day, "1e300", "804"), "");
}

TEST_F(ConversionsTest, WeeksOverflowFrom4682On) {
  const Date day = makeDate(2026, 11, 21);
  EXPECT_EQ(ru.AddPeriodToDate(day, "4681", "803"), "2116-08-08");
  EXPECT_EQ(ru.AddPeriodToDate(day, "4682", "803"), "");
}

TEST_F(ConversionsTest, ADateOutOfRangeIsEmpty) {
  EXPECT_EQ(ru.AddPeriodToDate(makeDate(9999, 12, 31), "1", "804"), "");
  EXPECT_EQ(ru.AddPeriodToDate(makeDate(100, 1, 1), "-1", "802"), "");
}

TEST_F(ConversionsTest, TheNumericTestAndTheConversionAgree) {
  EXPECT_TRUE(ru.isNumeric("1 000,5"));
  EXPECT_EQ(ru.toDouble("1 000,5"), 1000.5);
  EXPECT_FALSE(ru.isNumeric("1.5"));
  EXPECT_TRUE(us.isNumeric("1,5"));
  EXPECT_EQ(us.toDouble("1,5"), 15);
  EXPECT_EQ(errorNumberOf([&] { ru.toDouble("1.5"); }), 13);
  EXPECT_EQ(errorNumberOf([&] { ru.toDouble(""); }), 13);
  EXPECT_FALSE(us.isNumeric("1e400"));
  EXPECT_EQ(errorNumberOf([&] { us.toDouble("1e400"); }), 6);
}

TEST_F(ConversionsTest, ConversionToAWholeNumberRoundsHalfToEven) {
  EXPECT_EQ(ru.toInt16("0,5"), 0);
  EXPECT_EQ(ru.toInt16("1,5"), 2);
  EXPECT_EQ(ru.toInt16("2,5"), 2);
  EXPECT_EQ(ru.toInt16("2,51"), 3);
  EXPECT_EQ(us.toInt16("-0.5"), 0);
  EXPECT_EQ(us.toInt16("-1.5"), -2);
  EXPECT_EQ(us.toInt16("-2.5"), -2);
  EXPECT_EQ(us.toInt16("-2.51"), -3);
}

TEST_F(ConversionsTest, AWholeNumberHasSixteenBits) {
  EXPECT_EQ(ru.toInt16("32767,4"), 32767);
  EXPECT_EQ(ru.toInt16("-32768,5"), -32768);
  EXPECT_EQ(errorNumberOf([&] { ru.toInt16("32767,5"); }), 6);
  EXPECT_EQ(errorNumberOf([&] { ru.toInt16("-32769"); }), 6);
  EXPECT_EQ(errorNumberOf([&] { ru.toInt16("1e300"); }), 6);
  EXPECT_EQ(errorNumberOf([&] { ru.toInt16("ABC"); }), 13);
}

TEST_F(ConversionsTest, PlainNumberTextHasTheLocalesSeparator) {
  EXPECT_EQ(ru.plainNumber(3.75), "3,75");
  EXPECT_EQ(us.plainNumber(3.75), "3.75");
  EXPECT_EQ(ru.plainNumber(0), "0");
  EXPECT_EQ(errorNumberOf([&] { ru.plainNumber(1e308 * 10); }), 6);
}

TEST_F(ConversionsTest, DatesAndTimesAreReadByTheLocale) {
  EXPECT_EQ(ru.toDate("11.10.2026"), makeDate(2026, 10, 11));
  EXPECT_EQ(us.toDate("11/10/2026"), makeDate(2026, 11, 10));
  EXPECT_EQ(errorNumberOf([&] { ru.toDate("ABC"); }), 13);
  EXPECT_EQ(ru.toTime("10:15"), (TimeOfDay{10, 15}));
  EXPECT_EQ(us.toTime("10:15 PM"), (TimeOfDay{22, 15}));
  EXPECT_EQ(errorNumberOf([&] { us.toTime("25:00"); }), 13);
}

TEST_F(ConversionsTest, AShortDateReadsBackAsTheSameDay) {
  for (const Session* session : {&russian, &american}) {
    for (const Date day : {makeDate(2026, 11, 21), makeDate(1930, 1, 2), makeDate(2001, 2, 3)}) {
      EXPECT_EQ(session->conversions.toDate(session->locale.shortDate(day)), day);
      EXPECT_EQ(session->conversions.toDate(isoDate(day)), day);
    }
    EXPECT_EQ(session->conversions.toTime(session->locale.shortTime({22, 15})),
              (TimeOfDay{22, 15}));
  }
}

}  // namespace
}  // namespace awizo::test
