#include "assistants/distribution.h"

#include <gmock/gmock.h>

#include <random>

namespace awizo::test {
namespace {

using ::testing::IsEmpty;

LineRest counted(Thousandths rest) { return {.despatched = rest, .isCounted = true}; }
LineRest weighed(Thousandths rest) { return {.despatched = rest}; }

/// "0: 7250, 0: 1000 left 0".
std::string wordsOf(const LinePlan& plan) {
  std::string words;
  for (const PlannedPart& part : plan.parts) {
    words += std::to_string(part.package) + ": " + std::to_string(part.quantity) + ", ";
  }
  return words + "left " + std::to_string(plan.left);
}

std::string evenlyOver(const LineRest& line, std::size_t packages) {
  return wordsOf(planOf(line, packages, Spread::evenly));
}

TEST(Distribution, AllHereIsCutAsTheDialogLetsItThrough) {
  const auto here = [](Thousandths rest) {
    return wordsOf(planOf(weighed(rest), 2, Spread::allHere));
  };
  EXPECT_EQ(here(8000), "0: 8000, left 0");
  EXPECT_EQ(here(8250), "0: 7250, 0: 1000, left 0");
  EXPECT_EQ(here(12500), "0: 11500, 0: 1000, left 0") << "the half goes down to the even 12";
  EXPECT_EQ(here(11500), "0: 11500, left 0") << "the half goes up to the even 12";
  EXPECT_EQ(here(8750), "0: 8750, left 0");
  EXPECT_EQ(here(2500), "0: 1500, 0: 1000, left 0");
  EXPECT_EQ(here(1500), "0: 1500, left 0");
  EXPECT_EQ(here(1250), "0: 1000, left 250");
  EXPECT_EQ(here(1000), "0: 1000, left 0");
  EXPECT_EQ(here(500), "left 500");
  EXPECT_EQ(here(750), "left 750") << "never more than there is";
  EXPECT_EQ(here(996), "0: 996, left 0") << "the dialog sees 1.00";
  EXPECT_EQ(here(8004), "0: 8004, left 0") << "the dialog sees 8.00";
  EXPECT_EQ(here(8005), "0: 7005, 0: 1000, left 0");
  EXPECT_EQ(here(0), "left 0");
}

TEST(Distribution, EvenlyOverOneBox) {
  EXPECT_EQ(evenlyOver(counted(8250), 1), "0: 7250, 0: 1000, left 0");
  EXPECT_EQ(evenlyOver(counted(12500), 1), "0: 11500, 0: 1000, left 0");
  EXPECT_EQ(evenlyOver(counted(500), 1), "left 500");
  EXPECT_EQ(evenlyOver(counted(2500), 1), "0: 1500, 0: 1000, left 0");
}

TEST(Distribution, EvenlyOverTwoBoxesKeepsPiecesWhole) {
  EXPECT_EQ(evenlyOver(counted(5000), 2), "0: 3000, 1: 2000, left 0");
  EXPECT_EQ(evenlyOver(counted(8250), 2), "0: 4250, 1: 4000, left 0");
  EXPECT_EQ(evenlyOver(counted(12500), 2), "0: 6500, 1: 6000, left 0");
  EXPECT_EQ(evenlyOver(counted(500), 2), "left 500");
  EXPECT_EQ(evenlyOver(counted(2500), 2), "0: 1500, 1: 1000, left 0");
}

TEST(Distribution, EvenlyOverTwoBoxesDividesWhatIsWeighed) {
  EXPECT_EQ(evenlyOver(weighed(8250), 2), "0: 4125, 1: 3125, 1: 1000, left 0");
  EXPECT_EQ(evenlyOver(weighed(12500), 2), "0: 6250, 1: 5250, 1: 1000, left 0");
  EXPECT_EQ(evenlyOver(weighed(500), 2), "left 500");
  EXPECT_EQ(evenlyOver(weighed(2500), 2), "0: 1500, 1: 1000, left 0");
  EXPECT_EQ(evenlyOver(weighed(10001), 3), "0: 3334, 1: 3334, 2: 2333, 2: 1000, left 0");
}

TEST(Distribution, LeavesBoxesEmptyRatherThanPutLessThanOne) {
  EXPECT_EQ(evenlyOver(counted(3000), 5), "0: 1000, 1: 1000, 2: 1000, left 0");
  EXPECT_EQ(evenlyOver(weighed(2500), 3), "0: 1500, 1: 1000, left 0");
}

TEST(Distribution, SoManyEachAndTheRestInTheLast) {
  const auto byTwo = [](Thousandths rest, std::size_t packages) {
    return wordsOf(planOf(counted(rest), packages, Spread::soMany, 2000));
  };
  EXPECT_EQ(byTwo(5000, 3), "0: 2000, 1: 2000, 2: 1000, left 0");
  EXPECT_EQ(byTwo(10000, 3), "0: 2000, 1: 2000, 2: 6000, left 0");
  EXPECT_EQ(byTwo(3000, 5), "0: 2000, 1: 1000, left 0");
  EXPECT_EQ(byTwo(4500, 2), "0: 2000, 1: 1500, 1: 1000, left 0");
  EXPECT_EQ(byTwo(4500, 3), "0: 2000, 1: 2000, left 500");
}

TEST(Distribution, KeepsWhatIsPackedAndPutsOnlyTheRest) {
  EXPECT_EQ(evenlyOver({.despatched = 8000, .packed = 3000, .isCounted = true}, 2),
            "0: 3000, 1: 2000, left 0");
  EXPECT_EQ(evenlyOver({.despatched = 8000, .packed = 8000}, 2), "left 0");
  EXPECT_THAT(planOf({.despatched = 5000, .packed = 8000}, 2, Spread::evenly).parts, IsEmpty());
  EXPECT_THAT(planOf(counted(5000), 0, Spread::evenly).parts, IsEmpty());
}

TEST(Distribution, OfRandomLinesLeavesLessThanOneAndMakesUpTheSum) {
  std::mt19937 random(1);
  for (int i = 0; i < 20'000; ++i) {
    const auto below = [&](Thousandths end) { return static_cast<Thousandths>(random() % end); };
    LineRest line{.despatched = below(60'000), .isCounted = below(2) == 0};
    line.packed = below(line.despatched + 1);
    const auto packages = static_cast<std::size_t>(1 + below(9));
    const auto spread = static_cast<Spread>(below(3));
    const LinePlan plan = planOf(line, packages, spread, 1000 + below(5000));
    Thousandths packed = line.packed;
    for (const PlannedPart& part : plan.parts) {
      ASSERT_TRUE(isLetThrough(part.quantity, line.despatched, packed)) << wordsOf(plan);
      ASSERT_LT(part.package, packages);
      packed += part.quantity;
    }
    ASSERT_EQ(packed + plan.left, line.despatched);
    ASSERT_GE(plan.left, 0);
    ASSERT_LT(plan.left, 1000) << wordsOf(plan);
    if (spread == Spread::evenly && line.isCounted && (line.despatched - line.packed) % 1000 == 0) {
      ASSERT_EQ(plan.left, 0) << wordsOf(plan);
      for (const PlannedPart& part : plan.parts) ASSERT_EQ(part.quantity % 1000, 0);
    }
  }
}

}  // namespace
}  // namespace awizo::test
