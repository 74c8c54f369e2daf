#include <algorithm>
#include <random>

#include "linedialog/sort.h"
#include "support/test_editor.h"

namespace awizo::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

struct SortNumbers : ::testing::TestWithParam<std::string> {
  TestEditor test{GetParam()};
  Sorter sorter{test.screen, test.editor.conversions};

  std::vector<std::int32_t> sorted(const std::vector<std::string>& keys) {
    std::vector<std::int32_t> index(keys.size());
    for (std::size_t i = 0; i < keys.size(); ++i) index[i] = static_cast<std::int32_t>(i);
    sorter.ReDimSplitArrays(static_cast<std::int32_t>(keys.size()) + 1);
    sorter.QuickSortNumbers(keys, index, 0, static_cast<std::int32_t>(keys.size()) - 1);
    return index;
  }
  std::string number(std::string text) {
    std::replace(text.begin(), text.end(), ',', test.session.DecimalSeparator.front());
    return text;
  }
};
INSTANTIATE_TEST_SUITE_P(InBothLocales, SortNumbers, ::testing::Values("ru_RU", "en_US"));

TEST_P(SortNumbers, ReadsTheLocalesNumbersAndMinusOneForTheRest) {
  EXPECT_EQ(sorter.ToNumberOrMinusOne(number("1,5")), 1.5);
  EXPECT_EQ(sorter.ToNumberOrMinusOne("-7"), -7);
  EXPECT_EQ(sorter.ToNumberOrMinusOne(""), -1);
  EXPECT_EQ(sorter.ToNumberOrMinusOne("чай"), -1);
  EXPECT_EQ(sorter.ToNumberOrMinusOne("1e999"), -1);
}

TEST_P(SortNumbers, ComparesByNumber) {
  EXPECT_EQ(sorter.CompareNumbers("9", "10"), -1);
  EXPECT_EQ(sorter.CompareNumbers("10", "9"), 1);
  EXPECT_EQ(sorter.CompareNumbers("10", number("10,0")), 0);
  EXPECT_EQ(sorter.CompareNumbers("чай", "-5"), -1);
  EXPECT_EQ(sorter.CompareNumbers("-5", "чай"), 1);
}

TEST_P(SortNumbers, ComparesTextsBlindToCase) {
  EXPECT_EQ(sorter.CompareNumbers("кофе", "Чай"), -1);
  EXPECT_EQ(sorter.CompareNumbers("чай", "Кофе"), 1);
  EXPECT_EQ(sorter.CompareNumbers("чай", "ЧАЙ"), 0);
}

TEST_P(SortNumbers, TakesTheNumberMinusOneForATextThatCantBeRead) {
  EXPECT_EQ(sorter.CompareNumbers("-1", "чай"), -1) << "compared as texts";
  EXPECT_EQ(sorter.CompareNumbers("-1", "-5"), -1);
}

TEST_P(SortNumbers, DescendsAndPutsTextsLast) {
  EXPECT_THAT(sorted({"чай", "9", "10", number("9,5"), "-3"}), ElementsAre(2, 3, 1, 4, 0));
}

TEST_P(SortNumbers, KeysEqualToThePivotGoToItsRight) {
  EXPECT_THAT(sorted({"7", "7"}), ElementsAre(0, 1));
  const std::vector<std::string> keys{"5", "5", "9", "1"};
  std::vector<std::int32_t> index{0, 1, 2, 3};
  EXPECT_EQ(sorter.PartitionNumbers(keys, index, 0, 3), 1);
  EXPECT_THAT(index, ElementsAre(2, 0, 1, 3));
}

TEST_P(SortNumbers, OfNothingOrOneElementDoesNothing) {
  EXPECT_THAT(sorted({}), IsEmpty());
  EXPECT_THAT(sorted({"5"}), ElementsAre(0));
  EXPECT_THAT(test.face.boxes(), IsEmpty());
}

TEST_P(SortNumbers, SortsRandomNumbers) {
  std::mt19937 random(7);
  for (int round = 0; round < 50; ++round) {
    std::vector<std::string> keys;
    for (int i = 0; i < 40; ++i) keys.push_back(std::to_string(random() % 50));
    const std::vector<std::int32_t> index = sorted(keys);
    for (std::size_t i = 1; i < index.size(); ++i) {
      EXPECT_GE(std::stoi(keys[static_cast<std::size_t>(index[i - 1])]),
                std::stoi(keys[static_cast<std::size_t>(index[i])]));
    }
  }
}

TEST_P(SortNumbers, WrongCallsAreTold) {
  std::vector<std::int32_t> index{0, 1};
  sorter.ReDimSplitArrays(3);
  sorter.QuickSortNumbers({"1"}, index, 0, 1);
  sorter.ReDimSplitArrays(-1);
  sorter.QuickSortNumbers({"1", "2"}, index, 0, 1);
  EXPECT_THAT(
      describe(test.face.boxes()),
      ElementsAre("Произошла ошибка в  PartitionNumbers()|critical|OK|Subscript out of range",
                  "Произошла ошибка в  PutSplitAreas()|critical|OK|Subscript out of range"));
  EXPECT_THAT(index, ElementsAre(0, 1));
}

}  // namespace
}  // namespace awizo::test
