#include "formats/customs_number.h"

#include "support/logged.h"

namespace awizo::test {
namespace {

using ::testing::ElementsAre;

TEST(SplitCDN, ThreePiecesLeaveField4Empty) {
  TestEditor test;
  EXPECT_THAT(SplitCDN(test.editor, "12345678/010108/1234567"),
              ElementsAre("12345678", "010108", "1234567", ""));
}

TEST(SplitCDN, FourPiecesAreTheFields) {
  TestEditor test;
  EXPECT_THAT(SplitCDN(test.editor, "П2345678/010108/П234567/RU"),
              ElementsAre("П2345678", "010108", "П234567", "RU"));
}

TEST(SplitCDN, FieldsMayBeEmpty) {
  TestEditor test;
  EXPECT_THAT(SplitCDN(test.editor, "/010108/"), ElementsAre("", "010108", "", ""));
  EXPECT_THAT(SplitCDN(test.editor, "///"), ElementsAre("", "", "", ""));
}

TEST(SplitCDN, AnyOtherNumberOfPiecesGivesTodayAndEmptyFields) {
  TestEditor test;
  for (const char* malformed : {"", "12345678", "12345678/010108", "1/2/3/4/5", "1/2/3/4/5/6"}) {
    EXPECT_THAT(SplitCDN(test.editor, malformed), ElementsAre("", "211126", "", "")) << malformed;
  }
}

TEST(SplitCDN, LogsTheTextAndTheHighestIndexOfItsPieces) {
  TestEditor test;
  openLog(test);
  SplitCDN(test.editor, "12345678/010108/1234567/RU");
  EXPECT_THAT(loggedMessages(test),
              ElementsAre("SplitCDN: cdn=12345678/010108/1234567/RU", "SplitCDN: count=3"));
}

TEST(SplitCDN, LogsACountOf0ForAnEmptyCellAndThenTheDate) {
  TestEditor test;
  openLog(test);
  SplitCDN(test.editor, "");
  EXPECT_THAT(loggedMessages(test),
              ElementsAre("SplitCDN: cdn=", "SplitCDN: count=0", "FormatCDNDate: 211126"));
}

TEST(SplitCDN, LogsNothingBelowTheTraceLevel) {
  TestEditor test;
  openLog(test, 3);
  SplitCDN(test.editor, "");
  EXPECT_THAT(loggedMessages(test), ElementsAre());
}

TEST(JoinCDN, PutsSlashesBetweenTheFields) {
  EXPECT_EQ(JoinCDN("12345678", "010108", "1234567", ""), "12345678/010108/1234567");
  EXPECT_EQ(JoinCDN("12345678", "010108", "1234567", "RU"), "12345678/010108/1234567/RU");
}

TEST(JoinCDN, OneOfFields1And3IsEnough) {
  EXPECT_EQ(JoinCDN("1", "010108", "", ""), "1/010108/");
  EXPECT_EQ(JoinCDN("", "010108", "3", ""), "/010108/3");
}

TEST(JoinCDN, WithoutFields1And3ThereIsNoNumber) {
  EXPECT_EQ(JoinCDN("", "010108", "", "RU"), "");
  EXPECT_EQ(JoinCDN("", "", "", ""), "");
}

TEST(JoinCDN, ABlankField4IsLeftOutAndAnotherKeepsItsBlanks) {
  EXPECT_EQ(JoinCDN("1", "2", "3", "  "), "1/2/3");
  EXPECT_EQ(JoinCDN("1", "2", "3", " R "), "1/2/3/ R ");
}

TEST(FormatCDNDate, IsDayMonthAndTwoDigitsOfTheYearAndIsLogged) {
  TestEditor test;
  openLog(test);
  EXPECT_EQ(FormatCDNDate(test.editor, makeDate(2008, 1, 2)), "020108");
  EXPECT_EQ(FormatCDNDate(test.editor, makeDate(1999, 12, 31)), "311299");
  EXPECT_THAT(loggedMessages(test), ElementsAre("FormatCDNDate: 020108", "FormatCDNDate: 311299"));
}

class CustomsNumberPart : public ::testing::TestWithParam<const char*> {
 protected:
  TestEditor test{GetParam()};
  const Conversions& conversions = test.editor.conversions;
};

INSTANTIATE_TEST_SUITE_P(Locales, CustomsNumberPart, ::testing::Values("ru_RU", "en_US"));

TEST_P(CustomsNumberPart, IsNumericWithTheLetterAnywhere) {
  for (const char* numeric : {"1", "12345678", "П1", "П1234567", "12П34", "ПП12", "1П"}) {
    EXPECT_TRUE(IsCDNPartNumeric(conversions, numeric)) << numeric;
  }
}

TEST_P(CustomsNumberPart, IsNotNumericOtherwise) {
  // The letter is the capital one, and the first character must be a digit or that letter.
  for (const char* other : {"", "П", "ПП", "A1", "1A", "п1234567", "-1", " 1", "Р1"}) {
    EXPECT_FALSE(IsCDNPartNumeric(conversions, other)) << other;
  }
}

TEST_P(CustomsNumberPart, IsFilledUpWithZeros) {
  EXPECT_EQ(PadCDNPart(conversions, "12", 7), "0000012");
  EXPECT_EQ(PadCDNPart(conversions, "0", 8), "00000000");
  EXPECT_EQ(PadCDNPart(conversions, "1234567", 7), "1234567");
}

TEST_P(CustomsNumberPart, GetsItsZerosBehindTheLetter) {
  EXPECT_EQ(PadCDNPart(conversions, "П12", 8), "П0000012");
  EXPECT_EQ(PadCDNPart(conversions, "П123456", 7), "П123456");
}

TEST_P(CustomsNumberPart, LosesALetterInsideTheText) {
  EXPECT_EQ(PadCDNPart(conversions, "12П34", 8), "00001234");
  EXPECT_EQ(PadCDNPart(conversions, "П1П2", 8), "П0000012");
}

TEST_P(CustomsNumberPart, StaysLongerThanTheWidth) {
  EXPECT_EQ(PadCDNPart(conversions, "123456789", 7), "123456789");
}

TEST_P(CustomsNumberPart, ThatIsNoNumberStaysAsItIs) {
  EXPECT_EQ(PadCDNPart(conversions, "", 8), "");
  EXPECT_EQ(PadCDNPart(conversions, "П", 8), "П");
  EXPECT_EQ(PadCDNPart(conversions, "12A", 8), "12A");
  EXPECT_EQ(PadCDNPart(conversions, "П12A", 8), "П12A");
}

TEST_P(CustomsNumberPart, KeepsAMinusBeforeTheZeros) {
  EXPECT_EQ(PadCDNPart(conversions, "-12", 7), "-0000012");
}

TEST(PadCDNPart, RoundsByTheLocale) {
  TestEditor russian("ru_RU");
  EXPECT_EQ(PadCDNPart(russian.editor.conversions, "11,5", 7), "0000012");
  EXPECT_EQ(PadCDNPart(russian.editor.conversions, "11.5", 7), "11.5");
  TestEditor american("en_US");
  EXPECT_EQ(PadCDNPart(american.editor.conversions, "11.5", 7), "0000012");
}

struct Check {
  const char* cdn;
  int faulty;
};

class FaultyCustomsNumberField : public ::testing::TestWithParam<Check> {};

TEST_P(FaultyCustomsNumberField, IsTheFirstOfAWrongForm) {
  TestEditor test;
  EXPECT_EQ(faultyCustomsNumberField(test.editor, GetParam().cdn), GetParam().faulty)
      << GetParam().cdn;
}

INSTANTIATE_TEST_SUITE_P(
    Composites, FaultyCustomsNumberField,
    ::testing::Values(Check{"12345678/010108/1234567", 0}, Check{"12345678/010108/1234567/", 0},
                      Check{"12345678/010108/1234567/R", 0}, Check{"12345678/010108/1234567/RU", 0},
                      Check{"12345678/010108/1234567/ЯЯЯ", 0}, Check{"П1234567/010108/П123456", 0},
                      Check{"/010108/", 0}, Check{"/nonsense/", 0}, Check{"//", 0}, Check{"", 0},
                      // Two pieces are no number, so nothing is wrong with them.
                      Check{"12345678/010108", 0}, Check{"1/2/3/4/5", 0},
                      Check{"123/010108/1234567", 1}, Check{"/010108/1234567", 1},
                      Check{"123456789/010108/1234567", 1}, Check{"П12345678/010108/1234567", 1},
                      Check{"A2345678/010108/1234567", 1}, Check{"12345678//1234567", 2},
                      Check{"12345678/01018/1234567", 2}, Check{"12345678/0101080/1234567", 2},
                      Check{"12345678/П10108/1234567", 2}, Check{"12345678/010108/", 3},
                      Check{"12345678/010108/123456", 3}, Check{"12345678/010108/П1234567", 3},
                      Check{"12345678/010108/123456A", 3},
                      Check{"12345678/010108/1234567/RUSS", 4}));

}  // namespace
}  // namespace awizo::test
