#include <gtest/gtest.h>

#include <cstdlib>

#include "random_user/user.h"
#include "support/environment.h"

namespace awizo::test {
namespace {

struct Tally {
  int actions = 0;
  int checked = 0;    ///< actions on the main form after which every rule was asked for
  int unchecked = 0;  ///< after a file was read or an error reported
  int documents = 0;
  int failures = 0;
  int largest = 0;
};

/// One session from the start to its end; answers whether all was well.
bool play(Dice& dice, const Beginning& beginning, Tally& tally) {
  RandomUser user(dice, beginning);
  const int length = 50 + dice.below(350);
  for (int i = 0; i < length; ++i) {
    user.act();
    const std::vector<std::string> complaints = user.complaints();
    ++(user.trust().tables ? tally.checked : tally.unchecked);
    tally.largest = std::max(tally.largest, user.linesAndPackages());
    if (complaints.empty()) continue;
    ADD_FAILURE() << ::testing::PrintToString(complaints) << "\nafter\n" << user.history();
    return false;
  }
  tally.actions += user.actions();
  tally.documents += user.documents();
  tally.failures += user.failures();
  return true;
}

class RandomUserTest : public ::testing::TestWithParam<const char*> {
 protected:
  /// A message that only chance has shown isn't shown by a test of its own.
  static void SetUpTestSuite() { unsetenv("AWIZO_SEEN_BOXES"); }

  enum class WithOutages { no, yes };
  /// Plays sessions until this many actions are done, or as many as the environment says.
  static void playFor(int actions, WithOutages outages);
};

void RandomUserTest::playFor(int actions, WithOutages outages) {
  const int seed = fromEnvironment("AWIZO_RANDOM_SEED", 20261121);
  const int wanted = fromEnvironment("AWIZO_RANDOM_ACTIONS", actions);
  SCOPED_TRACE("AWIZO_RANDOM_SEED=" + std::to_string(seed));
  Dice dice(static_cast<unsigned>(seed));
  Tally tally;
  const bool fails = outages == WithOutages::yes;
  while (tally.actions < wanted) {
    const Beginning beginning{GetParam(), dice.percent(50), dice.percent(10), fails};
    if (!play(dice, beginning, tally)) return;
  }
  // The user has to come far for the rules to mean something.
  EXPECT_GT(tally.checked, tally.unchecked);
  EXPECT_GT(tally.documents, 0);
  EXPECT_GT(tally.largest, 20);
  if (fails) {
    EXPECT_GT(tally.failures, wanted / 200);
  }
  std::printf(
      "%d actions, %d checks, %d left out, %d documents, %d failures told, at most %d lines and "
      "packages\n",
      tally.actions, tally.checked, tally.unchecked, tally.documents, tally.failures,
      tally.largest);
}

INSTANTIATE_TEST_SUITE_P(Locales, RandomUserTest, ::testing::Values("ru_RU", "en_US"),
                         [](const auto& parameter) { return std::string(parameter.param); });

TEST_P(RandomUserTest, BreaksNoRule) { playFor(20000, WithOutages::no); }

TEST_P(RandomUserTest, BreaksNoRuleWhileDisksAndServiceFail) { playFor(5000, WithOutages::yes); }

}  // namespace
}  // namespace awizo::test
