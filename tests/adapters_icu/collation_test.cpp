#include <algorithm>

#include "adapters/icu/icu_locale.h"

namespace awizo {
namespace {

using testing::ElementsAre;

std::vector<std::string> sorted(const IcuLocale& locale, std::vector<std::string> texts) {
  std::stable_sort(texts.begin(), texts.end(), [&](const auto& left, const auto& right) {
    return locale.compare(left, right) < 0;
  });
  return texts;
}

class Collation : public testing::TestWithParam<const char*> {
 protected:
  const IcuLocale locale{GetParam()};
};

TEST_P(Collation, CaseMakesNoDifference) {
  EXPECT_TRUE(locale.sameIgnoringCase("Молоко ЁЛКА 1 l", "МОЛОКО ёлка 1 L"));
  EXPECT_TRUE(locale.sameIgnoringCase("", ""));
}

TEST_P(Collation, AccentsPunctuationAndBlanksMakeADifference) {
  EXPECT_FALSE(locale.sameIgnoringCase("е", "ё"));
  EXPECT_FALSE(locale.sameIgnoringCase("resume", "resumé"));
  EXPECT_FALSE(locale.sameIgnoringCase("co-op", "coop"));
  EXPECT_FALSE(locale.sameIgnoringCase("co op", "coop"));
  EXPECT_FALSE(locale.sameIgnoringCase("a", ""));
  EXPECT_FALSE(locale.sameIgnoringCase("a ", "a"));
  EXPECT_FALSE(locale.sameIgnoringCase("«а»", "а"));
}

TEST_P(Collation, CyrillicInAlphabeticalOrder) {
  EXPECT_THAT(sorted(locale, {"яблоко", "Ель", "ёж", "йод", "иней", "Груша", "абрикос", "Бук"}),
              ElementsAre("абрикос", "Бук", "Груша", "ёж", "Ель", "иней", "йод", "яблоко"));
}

TEST_P(Collation, YoDiffersFromYeOnlyWhereAllElseIsTheSame) {
  EXPECT_THAT(sorted(locale, {"ёл", "ел", "ёк", "ек", "ёка"}),
              ElementsAre("ек", "ёк", "ёка", "ел", "ёл"));
}

TEST_P(Collation, DigitsGoBeforeLettersAndPunctuationBeforeDigits) {
  EXPECT_THAT(sorted(locale, {"б", "9", "-", "10", "", " "}),
              ElementsAre("", " ", "-", "10", "9", "б"));
}

TEST_P(Collation, ATextGoesBeforeItsContinuation) {
  EXPECT_THAT(sorted(locale, {"молоко 1", "молоко", "Молоко", "мол"}),
              ElementsAre("мол", "молоко", "Молоко", "молоко 1"));
}

TEST_P(Collation, RanksAreThePlacesOfTheSameOrder) {
  EXPECT_THAT(locale.ranks({"яблоко", "ЁЖ", "Ель", "ёж", "", "2", "Яблоко "}),
              ElementsAre(4, 2, 3, 2, 0, 1, 5));
  EXPECT_THAT(locale.ranks({}), testing::IsEmpty());
}

TEST_P(Collation, ComparingGivesASignAlone) {
  EXPECT_EQ(locale.compare("ёж", "Ель"), -1);
  EXPECT_EQ(locale.compare("Ель", "ёж"), 1);
  EXPECT_EQ(locale.compare("МОЛОКО", "молоко"), 0);
}

TEST_P(Collation, FormsOfOneCharacterHaveOnePlace) {
  EXPECT_EQ(locale.compare("ﬁ", "fi"), 0);
  EXPECT_THAT(locale.ranks({"Ａ", "a", "b"}), ElementsAre(0, 0, 1));
}

TEST_P(Collation, BytesThatAreNoTextAreTakenToo) {
  EXPECT_FALSE(locale.sameIgnoringCase("a\xFF", "a"));
  EXPECT_FALSE(locale.sameIgnoringCase("a\xD0", "a"));
}

INSTANTIATE_TEST_SUITE_P(Locales, Collation, testing::Values("ru_RU", "en_US"));

}  // namespace
}  // namespace awizo
