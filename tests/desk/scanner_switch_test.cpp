#include "desk/scanner_switch.h"

#include <gmock/gmock.h>

#include "platform/forms/keys.h"
#include "support/control/desk.h"

namespace awizo::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

struct ScannerSwitchTest : ::testing::Test, Desk {
  ScannerSwitch made() {
    return {finder, settings, [this](std::string_view ean) {
              packed.emplace_back(ean);
              return std::string("упаковано");
            }};
  }
  void scan(std::string_view digits) {
    for (const char digit : digits) finder.takeKey(digit);
    finder.takeKey(keys::enter);
  }

  LineFinder finder{editor};
  std::vector<std::string> packed;
};

TEST_F(ScannerSwitchTest, IsOffAtFirstAndPutsAScannedProductInWhileItIsOn) {
  ScannerSwitch packs = made();
  EXPECT_FALSE(packs.isOn());
  scan("4607000000116");
  EXPECT_THAT(packed, IsEmpty());
  packs.turn(true);
  scan("4607000000116");
  scan("00395200010000000011");
  EXPECT_THAT(packed, ElementsAre("4607000000116")) << "a package is only gone to";
  packs.turn(false);
  scan("4607000000116");
  EXPECT_THAT(packed, ElementsAre("4607000000116"));
}

TEST_F(ScannerSwitchTest, StandsAsItWasLeft) {
  made().turn(true);
  EXPECT_TRUE(made().isOn());
  made().turn(false);
  EXPECT_FALSE(made().isOn());
}

}  // namespace
}  // namespace awizo::test
