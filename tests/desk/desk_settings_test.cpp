#include "desk/desk_settings.h"

#include <gtest/gtest.h>

#include "adapters/memory/settings_in_memory.h"
#include "platform/run_time_error.h"

namespace awizo::test {
namespace {

TEST(DeskSwitches, AreOffAtFirstAndKept) {
  SettingsInMemory settings;
  for (const DeskSwitch which : {DeskSwitch::packingPane, DeskSwitch::scannerPacks}) {
    EXPECT_FALSE(isOn(settings, which));
    setOn(settings, which, true);
    EXPECT_TRUE(isOn(settings, which));
  }
  setOn(settings, DeskSwitch::packingPane, false);
  EXPECT_FALSE(isOn(settings, DeskSwitch::packingPane));
  EXPECT_TRUE(isOn(settings, DeskSwitch::scannerPacks));
}

TEST(DeskSwitches, OfSettingsThatCanNotBeWrittenStayAsTheyWere) {
  struct Unwritable : SettingsInMemory {
    void write(std::string_view, std::string_view, std::string_view, std::string_view) override {
      throw errors::permissionDenied();
    }
  } settings;
  setOn(settings, DeskSwitch::scannerPacks, true);
  EXPECT_FALSE(isOn(settings, DeskSwitch::scannerPacks));
}

}  // namespace
}  // namespace awizo::test
