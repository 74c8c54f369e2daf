#include "platform/xpath_number.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>

namespace awizo::test {
namespace {

TEST(XPathNumber, ReadsDigitsWithOrWithoutAFraction) {
  EXPECT_EQ(xpathNumber("0"), 0.0);
  EXPECT_EQ(xpathNumber("5901234123457"), 5901234123457.0);
  EXPECT_EQ(xpathNumber("007"), 7.0);
  EXPECT_EQ(xpathNumber("1.5"), 1.5);
  EXPECT_EQ(xpathNumber("1."), 1.0);
  EXPECT_EQ(xpathNumber(".5"), 0.5);
  EXPECT_EQ(xpathNumber("-1.5"), -1.5);
  EXPECT_EQ(xpathNumber(" \t\r\n12\n"), 12.0);
}

TEST(XPathNumber, KnowsNoOtherForm) {
  for (const char* text : {"", " ", ".", "-", "-.", "+1", "1,5", "1 2", "- 1", "--1", "1-", "1.2.3",
                           "0x1", "Infinity", "-Infinity", "inf", "NaN", "1\u00A0", "١"}) {
    EXPECT_EQ(xpathNumber(text), std::nullopt) << text;
  }
}

TEST(XPathNumber, KnowsNoExponent) {
  for (const char* text : {"1e5", "1E5", "1e+5", "1e-5", "1.5e3", "1.e3", ".5e3", "-1e5", "1e",
                           "1e5 ", "0e0", "1d5"}) {
    EXPECT_EQ(xpathNumber(text), std::nullopt) << text;
  }
}

TEST(XPathNumber, RoundsToTheRangeOfFloatingNumbers) {
  EXPECT_EQ(xpathNumber(std::string(400, '9')), HUGE_VAL);
  EXPECT_EQ(xpathNumber("-" + std::string(400, '9')), -HUGE_VAL);
  EXPECT_EQ(xpathNumber("0." + std::string(400, '0') + "1"), 0.0);
}

}  // namespace
}  // namespace awizo::test
