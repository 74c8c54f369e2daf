#include "desk/kept_sizes.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "adapters/memory/settings_in_memory.h"
#include "platform/run_time_error.h"

namespace awizo::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

struct KeptSizesTest : ::testing::Test {
  SettingsInMemory settings;
  KeptSizes kept{settings};
};

TEST_F(KeptSizesTest, AreThoseOfTheLastTime) {
  EXPECT_THAT(kept.of("window", 2), IsEmpty());
  kept.keep("window", {1024, 700});
  kept.keep("tables", {300, 0});
  EXPECT_THAT(kept.of("window", 2), ElementsAre(1024, 700));
  EXPECT_THAT(KeptSizes(settings).of("tables", 2), ElementsAre(300, 0));
}

TEST_F(KeptSizesTest, OfAnotherProgramOrOfNoUseAreNone) {
  kept.keep("window", {1024, 700, 1});
  EXPECT_THAT(kept.of("window", 2), IsEmpty());
  for (const char* text :
       {"0 0", "-1 700", "1024 99999999999", "1024 wide", "1024 700x", "1024  700"}) {
    settings.values["Awizo\\Sizes\\window"] = text;
    EXPECT_THAT(kept.of("window", 2), IsEmpty()) << text;
  }
}

TEST_F(KeptSizesTest, ThatAreTooLargeLeaveTheOthersAsTheyAre) {
  kept.keep("columns", {0, 2400, 20001, 1200});
  EXPECT_THAT(kept.of("columns"), ElementsAre(0, 2400, 20000, 1200));
}

TEST_F(KeptSizesTest, ThatCannotBeWrittenDisturbNobody) {
  struct Full : SettingsInMemory {
    void write(std::string_view, std::string_view, std::string_view, std::string_view) override {
      throw errors::diskFull();
    }
  } full;
  KeptSizes unkept(full);
  unkept.keep("window", {1, 2});
  EXPECT_THAT(unkept.of("window", 2), IsEmpty());
}

}  // namespace
}  // namespace awizo::test
