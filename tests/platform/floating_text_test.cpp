#include "platform/floating_text.h"

#include <cfloat>
#include <optional>

namespace awizo::test {
namespace {

TEST(FloatingText, IsReadToTheNearestNumber) {
  EXPECT_EQ(readFloating("12.5"), 12.5);
  EXPECT_EQ(readFloating("125e-1"), 12.5);
  EXPECT_EQ(readFloating(".5"), 0.5);
  EXPECT_EQ(readFloating("5."), 5.0);
  EXPECT_EQ(readFloating("0"), 0.0);
  EXPECT_EQ(readFloating("0.1"), 0.1);
  EXPECT_EQ(readFloating("9007199254740993"), 9007199254740992.0);
  EXPECT_EQ(readFloating("17976931348623157e292"), DBL_MAX);
}

TEST(FloatingText, BeyondTheRangeIsNothing) { EXPECT_EQ(readFloating("1e309"), std::nullopt); }

TEST(FloatingText, TooSmallForANumberIsNothingOrZero) {
  EXPECT_EQ(readFloating("1e-400").value_or(0), 0.0);
}

}  // namespace
}  // namespace awizo::test
