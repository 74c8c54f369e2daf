#include "platform/floating_text.h"

#include <array>
#include <bit>
#include <cfloat>
#include <cmath>
#include <cstdio>
#include <optional>
#include <random>
#include <string>

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

struct Written {
  double value;
  std::size_t count;
  std::string digits;
  int exponent;
};

TEST(LeadingDigits, AreExactlyRounded) {
  // The nearest numbers to 0.15 and 2.675 lie below them; 2.5 and 3.5 lie between two digits.
  for (const Written& one : {Written{12.5, 3, "125", 1},
                             {12.5, 5, "12500", 1},
                             {0.00001, 1, "1", -5},
                             {0.15, 1, "1", -1},
                             {2.675, 3, "267", 0},
                             {2.5, 1, "2", 0},
                             {3.5, 1, "4", 0},
                             {999.96, 4, "1000", 3},
                             {DBL_MAX, 15, "179769313486232", 308},
                             {DBL_TRUE_MIN, 15, "494065645841247", -324}}) {
    const auto [digits, exponent] = leadingDigits(one.value, one.count);
    EXPECT_EQ(digits, one.digits) << one.value;
    EXPECT_EQ(exponent, one.exponent) << one.value;
  }
}

TEST(LeadingDigits, AreThoseOfTheStandardLibrary) {
  std::mt19937_64 random(7);
  for (int i = 0; i < 20'000; ++i) {
    double value = std::abs(std::bit_cast<double>(random()));
    if (i % 2 == 0) value = static_cast<double>(random() % 1'000'000'000) / 1000;
    if (!std::isfinite(value) || value == 0) continue;
    std::array<char, 40> buffer{};
    std::snprintf(buffer.data(), buffer.size(), "%.14e", value);
    const std::string theirs(buffer.data());
    const auto [digits, exponent] = leadingDigits(value, 15);
    ASSERT_EQ(digits, theirs.substr(0, 1) + theirs.substr(2, 14)) << theirs;
    ASSERT_EQ(exponent, std::stoi(theirs.substr(theirs.find('e') + 1))) << theirs;
  }
}

}  // namespace
}  // namespace awizo::test
