#include "line_dialog.h"

namespace awizo::test {
namespace {

struct CountryCheck : ::testing::TestWithParam<std::string> {
  LineDialog test{GetParam()};

  /// What the check makes of the text: the code it found, "(none)" for a refusal.
  std::string check(std::string text) {
    test.session.IsoCheckCode = "earlier";
    CheckIsoCountry(test.session, test.isoCodes, test.locale, text);
    checked = text;
    return test.session.IsoCheckOk ? test.session.IsoCheckCode : "(none)";
  }
  std::string checked;  ///< the text after the check
};
INSTANTIATE_TEST_SUITE_P(InBothLocales, CountryCheck, ::testing::Values("ru_RU", "en_US"));

TEST_P(CountryCheck, TakesTwoLettersOfTheTable) {
  EXPECT_EQ(check("RU"), "RU");
  EXPECT_EQ(check("AU"), "AU");
  EXPECT_EQ(check("JP"), "JP");
}

TEST_P(CountryCheck, TakesAnyCaseAndMakesItUpper) {
  EXPECT_EQ(check("ru"), "RU");
  EXPECT_EQ(checked, "RU");
  EXPECT_EQ(check("(ru)россия"), "RU");
  EXPECT_EQ(checked, "(RU)РОССИЯ");
}

TEST_P(CountryCheck, TakesOldCodes) {
  for (const char* code : {"AN", "TP", "YU"}) EXPECT_EQ(check(code), code);
}

TEST_P(CountryCheck, TakesTheListsFormWhateverTheName) {
  EXPECT_EQ(check("(BY)Белоруссия"), "BY");
  EXPECT_EQ(check("(BY)"), "BY");
  EXPECT_EQ(check("(BY) и дальше"), "BY");
}

TEST_P(CountryCheck, TakesTheEmptyText) { EXPECT_EQ(check(""), ""); }

TEST_P(CountryCheck, RefusesLettersThatTheTableLacks) {
  EXPECT_EQ(check("XX"), "(none)");
  EXPECT_EQ(check("(XX)Страна"), "(none)");
  EXPECT_EQ(check("РФ"), "(none)");
}

TEST_P(CountryCheck, RefusesABareNameAndACodeWithAName) {
  EXPECT_EQ(check("Россия"), "(none)");
  EXPECT_EQ(check("RU Россия"), "(none)");
}

TEST_P(CountryCheck, RefusesThreeLettersAndOne) {
  EXPECT_EQ(check("RUS"), "(none)");
  EXPECT_EQ(check("(RU"), "(none)") << "the brackets of three characters stay";
  EXPECT_EQ(check("R"), "(none)");
  EXPECT_EQ(check(" "), "(none)");
  EXPECT_EQ(check("ﬁ"), "(none)") << "one character, though it looks like the two of a code";
}

TEST_P(CountryCheck, DropsBracketsWhereverTheyStand) {
  EXPECT_EQ(check("R()U"), "RU");
  EXPECT_EQ(check("((RU"), "RU");
}

TEST_P(CountryCheck, ARefusalKeepsTheEarlierCode) {
  check("XX");
  EXPECT_EQ(test.session.IsoCheckCode, "earlier");
}

TEST_P(CountryCheck, ReadsTheTableThroughTheDialogWhichLoadsIt) {
  test.session.IsoResult = "(PL)Польша";
  check("");
  EXPECT_FALSE(test.isoCodes.loaded());
  check("RU");
  EXPECT_TRUE(test.isoCodes.loaded());
  EXPECT_EQ(test.session.IsoResult, "");
}

TEST_P(CountryCheck, SpaceInATableCodeDoesntMatter) {
  test.isoCodes.touch().grdISO.setCell(3, " A U");
  EXPECT_EQ(check("AU"), "AU");
}

TEST_P(CountryCheck, LongTextsAreRefusedLikeAnyOther) {
  EXPECT_EQ(check(std::string(1000000, 'R')), "(none)");
  EXPECT_EQ(check("(RU)" + std::string(1000000, 'R')), "RU");
}

}  // namespace
}  // namespace awizo::test
