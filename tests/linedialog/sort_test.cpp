#include "linedialog/sort.h"

#include <algorithm>
#include <numeric>
#include <random>

#include "sort_model.h"
#include "support/test_editor.h"

namespace awizo::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

std::vector<std::int32_t> inFileOrder(std::size_t size) {
  std::vector<std::int32_t> index(size);
  std::iota(index.begin(), index.end(), 0);
  return index;
}

struct Sort : ::testing::Test {
  TestEditor test;
  Sorter sorter{test.screen, test.editor.conversions};

  std::vector<std::int32_t> sorted(const std::vector<std::string>& keys) {
    std::vector<std::int32_t> index = inFileOrder(keys.size());
    const auto size = static_cast<std::int32_t>(keys.size());
    sorter.QuickSortU(keys, index, 0, size - 1, size);
    return index;
  }
  std::vector<std::string> boxes() { return describe(test.face.takeBoxes()); }

  /// The sorter's order of these numbers, written as texts, next to the model's.
  void expectTheWalkOf(const std::vector<int>& numbers) {
    std::vector<std::string> keys;
    for (const int number : numbers) keys.push_back(textOf(number));
    std::vector<std::int32_t> expected = inFileOrder(numbers.size());
    SortModel{numbers, expected}.sort(0, static_cast<int>(numbers.size()) - 1);
    EXPECT_EQ(sorted(keys), expected) << ::testing::PrintToString(numbers);
  }
  /// Texts in the order of their numbers, in either case.
  std::string textOf(int number) {
    std::string text = "товар " + std::to_string(100000 + number);
    return caseOf(random_) == 0 ? text : test.locale.upper(text);
  }
  std::vector<int> randomNumbers(int size, int different) {
    std::vector<int> numbers(static_cast<std::size_t>(size));
    std::uniform_int_distribution<int> any(0, different - 1);
    std::generate(numbers.begin(), numbers.end(), [&] { return any(random_); });
    return numbers;
  }

  std::mt19937 random_{20261121};
  std::uniform_int_distribution<int> caseOf{0, 1};
};

TEST_F(Sort, PutsTextsInTheirOrderWithoutMovingThem) {
  const std::vector<std::string> keys{"сок", "Кофе", "чай", "какао"};
  EXPECT_THAT(sorted(keys), ElementsAre(3, 1, 0, 2));
  EXPECT_THAT(keys, ElementsAre("сок", "Кофе", "чай", "какао"));
}

TEST_F(Sort, PunctuationCounts) { EXPECT_THAT(sorted({"a-b", "ab", "a b"}), ElementsAre(2, 0, 1)); }

TEST_F(Sort, TextsThatDifferInCaseOnlyAreEqual) {
  // The walk leaves the pivot after its equals, whichever of the two it is.
  EXPECT_THAT(sorted({"чай", "ЧАЙ"}), ElementsAre(1, 0));
  EXPECT_THAT(sorted({"ЧАЙ", "чай"}), ElementsAre(1, 0));
  EXPECT_THAT(sorted({"ёлка", "ЁЛКА"}), ElementsAre(1, 0));
}

TEST_F(Sort, OfNothingDoesNothing) {
  std::vector<std::int32_t> index{7};
  sorter.QuickSortU({"б"}, index, 0, -1, 0);
  EXPECT_THAT(index, ElementsAre(7));
  EXPECT_THAT(boxes(), IsEmpty());
}

TEST_F(Sort, OfOneElementMovesNothing) {
  EXPECT_THAT(sorted({"б"}), ElementsAre(0));
  EXPECT_THAT(boxes(), IsEmpty());
}

TEST_F(Sort, OfASegmentLeavesTheRest) {
  const std::vector<std::string> keys{"д", "г", "в", "б", "а"};
  std::vector<std::int32_t> index = inFileOrder(5);
  sorter.QuickSortU(keys, index, 1, 3, 5);
  EXPECT_THAT(index, ElementsAre(0, 3, 2, 1, 4));
}

TEST_F(Sort, StartsFromTheIndexAsItIs) {
  const std::vector<std::string> keys{"а", "а", "а"};
  std::vector<std::int32_t> index{2, 0, 1};
  sorter.QuickSortU(keys, index, 0, 2, 3);
  const std::vector<int> numbers{0, 0, 0};
  std::vector<std::int32_t> expected{2, 0, 1};
  SortModel{numbers, expected}.sort(0, 2);
  EXPECT_EQ(index, expected);
}

// The walk decides among equal keys.

TEST_F(Sort, WalksAsToldOverRandomKeys) {
  for (int round = 0; round < 2000; ++round) {
    const int size = 1 + static_cast<int>(random_() % 60);
    const int different = 1 + static_cast<int>(random_() % 30);
    expectTheWalkOf(randomNumbers(size, different));
  }
  EXPECT_THAT(boxes(), IsEmpty());
}

TEST_F(Sort, WalksAsToldOverManyEqualKeys) {
  for (const int different : {1, 2, 3, 10, 500, 3000}) {
    expectTheWalkOf(randomNumbers(3000, different));
  }
}

TEST_F(Sort, WalksAsToldOverSortedAndReversedKeys) {
  for (const int different : {1, 2, 50, 700, 100000}) {
    std::vector<int> numbers = randomNumbers(1500, different);
    std::sort(numbers.begin(), numbers.end());
    expectTheWalkOf(numbers);
    std::reverse(numbers.begin(), numbers.end());
    expectTheWalkOf(numbers);
  }
}

TEST_F(Sort, WalksAsToldOverEveryArrangementOfFewKeys) {
  for (int size = 1; size <= 5; ++size) {
    std::vector<int> numbers(static_cast<std::size_t>(size), 0);
    while (true) {
      expectTheWalkOf(numbers);
      std::size_t place = 0;
      while (place < numbers.size() && ++numbers[place] == 4) numbers[place++] = 0;
      if (place == numbers.size()) break;
    }
  }
}

TEST_F(Sort, WalksAsToldOverWhatCostsItMost) {
  // Each key above the pivot next to it has its partner far away.
  std::vector<int> numbers;
  for (int i = 0; i < 600; i += 3) numbers.insert(numbers.end(), {i + 1, i + 2, i});
  expectTheWalkOf(numbers);
}

TEST_F(Sort, OneStepOfASegmentIsTheWalksOwn) {
  for (int round = 0; round < 300; ++round) {
    const std::vector<int> numbers = randomNumbers(20, 6);
    std::vector<std::string> keys;
    for (const int number : numbers) keys.push_back(textOf(number));
    std::vector<std::int32_t> index = inFileOrder(20);
    std::vector<std::int32_t> expected = inFileOrder(20);
    const int pivot = SortModel{numbers, expected}.partition(3, 17);
    EXPECT_EQ(sorter.Partition(keys, index, 3, 17), pivot);
    EXPECT_EQ(index, expected);
  }
}

// The stack.

TEST_F(Sort, TheStackIsLastInFirstOut) {
  sorter.ReDimSplitArrays(2);
  EXPECT_EQ(sorter.SplitTop, -1);
  sorter.PutSplitAreas(1, 2);
  sorter.PutSplitAreas(3, 4);
  EXPECT_EQ(sorter.SplitTop, 1);
  EXPECT_EQ(sorter.GetSplitAreas(), std::make_pair(3, 4));
  EXPECT_EQ(sorter.GetSplitAreas(), std::make_pair(1, 2));
  EXPECT_EQ(sorter.SplitTop, -1);
}

TEST_F(Sort, TheLeftPartIsWorkedOnFirst) {
  const std::vector<std::string> keys{"в", "г", "а", "д", "б"};
  std::vector<std::int32_t> index = inFileOrder(5);
  sorter.ReDimSplitArrays(6);
  sorter.IQuickSort(keys, index, 0, 4);
  EXPECT_EQ(sorter.GetSplitAreas(), std::make_pair(0, 1));
  EXPECT_EQ(sorter.GetSplitAreas(), std::make_pair(3, 4));
}

TEST_F(Sort, EmptySegmentsArePushedToo) {
  const std::vector<std::string> keys{"а", "б"};
  std::vector<std::int32_t> index = inFileOrder(2);
  sorter.ReDimSplitArrays(3);
  sorter.IQuickSort(keys, index, 0, 1);
  EXPECT_EQ(sorter.GetSplitAreas(), std::make_pair(0, -1));
  EXPECT_EQ(sorter.GetSplitAreas(), std::make_pair(1, 1));
  sorter.IQuickSort(keys, index, 1, 1);
  EXPECT_EQ(sorter.SplitTop, -1);
}

TEST_F(Sort, AStackOfTheNumberOfElementsPlusOneIsEnough) {
  // A reversed file, its keys in pairs so that the walk is walked, drives the stack highest.
  std::vector<int> numbers;
  for (int i = 400; i > 0; --i) numbers.push_back(i / 2);
  std::vector<std::string> keys;
  for (const int number : numbers) keys.push_back(textOf(number));
  std::vector<std::int32_t> index = inFileOrder(keys.size());
  sorter.ReDimSplitArrays(static_cast<std::int32_t>(keys.size()) + 1);
  sorter.QuickSort(keys, index, 0, static_cast<std::int32_t>(keys.size()) - 1);
  EXPECT_THAT(boxes(), IsEmpty());

  std::vector<std::int32_t> expected = inFileOrder(keys.size());
  SortModel model{numbers, expected};
  model.sort(0, static_cast<int>(keys.size()) - 1);
  EXPECT_EQ(index, expected);
  EXPECT_LE(model.highestStack, keys.size() + 2);
}

TEST_F(Sort, ASortedFileKeepsTheStackLow) {
  std::vector<int> numbers(300);
  std::iota(numbers.begin(), numbers.end(), 0);
  std::vector<std::int32_t> expected = inFileOrder(numbers.size());
  SortModel model{numbers, expected};
  model.sort(0, 299);
  EXPECT_EQ(model.highestStack, 2U);
  EXPECT_EQ(model.partitions, 299);

  std::vector<std::string> keys;
  for (const int number : numbers) keys.push_back(textOf(number));
  std::vector<std::int32_t> index = inFileOrder(keys.size());
  sorter.ReDimSplitArrays(1);
  sorter.QuickSort(keys, index, 0, 299);
  EXPECT_THAT(boxes(), IsEmpty()) << "two entries are enough";
  EXPECT_EQ(index, expected);
}

// Wrong calls are reported, and the index stays a permutation.

TEST_F(Sort, AStackThatIsTooSmallIsToldAndTheRestIsSorted) {
  const std::vector<std::string> keys{"д", "г", "в", "б", "а"};
  std::vector<std::int32_t> index = inFileOrder(5);
  sorter.ReDimSplitArrays(0);
  sorter.QuickSort(keys, index, 0, 4);
  const std::vector<std::string> told = boxes();
  ASSERT_FALSE(told.empty());
  for (const std::string& box : told) {
    EXPECT_EQ(box, "Произошла ошибка в  PutSplitAreas()|critical|OK|Subscript out of range");
  }
  EXPECT_TRUE(std::is_permutation(index.begin(), index.end(), inFileOrder(5).begin()));
}

TEST_F(Sort, WithoutAStackNothingIsSorted) {
  std::vector<std::int32_t> index{0, 1};
  sorter.QuickSort({"б", "а"}, index, 0, 1);
  EXPECT_THAT(
      boxes(),
      ElementsAre("Произошла ошибка в  PutSplitAreas()|critical|OK|Subscript out of range"));
  EXPECT_THAT(index, ElementsAre(0, 1));
}

TEST_F(Sort, PoppingAnEmptyStackIsTold) {
  sorter.GetSplitAreas();
  EXPECT_THAT(
      boxes(),
      ElementsAre("Произошла ошибка в  GetSplitAreas()|critical|OK|Subscript out of range"));
}

TEST_F(Sort, KeysWithoutBoundsAreTold) {
  std::vector<std::int32_t> index{0, 1};
  sorter.QuickSortU({}, index, 0, 1, 2);
  EXPECT_THAT(boxes(),
              ElementsAre("Произошла ошибка в  Partition()|critical|OK|Subscript out of range"));
  EXPECT_THAT(index, ElementsAre(0, 1));
}

TEST_F(Sort, ASegmentPastTheIndexIsTold) {
  std::vector<std::int32_t> index{0, 1};
  sorter.QuickSortU({"б", "а"}, index, 0, 2, 3);
  sorter.QuickSortU({"б", "а"}, index, -1, 1, 3);
  EXPECT_THAT(boxes(),
              ElementsAre("Произошла ошибка в  Partition()|critical|OK|Subscript out of range",
                          "Произошла ошибка в  Partition()|critical|OK|Subscript out of range"));
  EXPECT_THAT(index, ElementsAre(0, 1));
}

TEST_F(Sort, ANegativeSizeOfTheStackIsTheCallersError) {
  std::vector<std::int32_t> index{0, 1};
  EXPECT_THROW(sorter.QuickSortU({"б", "а"}, index, 0, 1, -3), RunTimeError);
  EXPECT_THAT(index, ElementsAre(0, 1));
}

}  // namespace
}  // namespace awizo::test
