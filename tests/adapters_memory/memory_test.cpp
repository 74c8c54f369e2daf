#include <gtest/gtest.h>

#include "adapters/memory/fixed_clock.h"
#include "adapters/memory/settings_in_memory.h"

namespace awizo {
namespace {

TEST(SettingsInMemoryTest, KeepsValuesAndGivesDefaults) {
  SettingsInMemory settings;
  EXPECT_EQ(settings.read("VIRD", "VirdActiveX", "OffLinePath", "-"), "-");
  settings.write("VIRD", "VirdActiveX", "OffLinePath", "");
  EXPECT_EQ(settings.read("VIRD", "VirdActiveX", "OffLinePath", "-"), "");
}

TEST(FixedClockTest, StandsStill) {
  const FixedClock clock({makeDate(2026, 11, 21), {10, 15, 7}});
  EXPECT_EQ(clock.today(), makeDate(2026, 11, 21));
  EXPECT_EQ(clock.now().time, (TimeOfDay{10, 15, 7}));
}

}  // namespace
}  // namespace awizo
