// What the fuzzer has found once stays found: each target takes its corpus. A broken promise ends
// this program with a word on what was broken.

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <string>

#include "fuzz/targets.h"
#include "support/files/files.h"

namespace awizo::fuzz {
namespace {

namespace fs = std::filesystem;

using test::projectFolder;

class Corpus : public testing::TestWithParam<NamedTarget> {
 protected:
  /// A message that only chance has shown isn't shown by a test of its own.
  static void SetUpTestSuite() { unsetenv("AWIZO_SEEN_BOXES"); }

  /// Passes each file of the folder to the target; returns how many there were.
  static int give(const fs::path& folder) {
    int files = 0;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder)) {
      SCOPED_TRACE(entry.path());
      GetParam().run(test::readFile(entry));
      ++files;
    }
    return files;
  }
};

INSTANTIATE_TEST_SUITE_P(Targets, Corpus, testing::ValuesIn(targets), [](const auto& test) {
  std::string name(test.param.name);
  std::erase(name, '-');
  return name;
});

TEST_P(Corpus, BreaksNoPromise) {
  EXPECT_GT(give(projectFolder() / "fuzz/corpus" / GetParam().name), 0);
}

TEST_P(Corpus, SamplesBreakNoPromiseWhateverTheyAreTakenFor) {
  EXPECT_GT(give(projectFolder() / "samples"), 0);
}

TEST(BrokenPromise, EndsTheProgramWithAWord) {
  EXPECT_DEATH(require(false, "two and two are four"), "Broken: two and two are four");
}

TEST(Target, IsFoundByItsName) {
  EXPECT_EQ(findTarget("order"), order);
  EXPECT_EQ(findTarget("nobody"), nullptr);
}

}  // namespace
}  // namespace awizo::fuzz
