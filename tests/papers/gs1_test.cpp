#include "papers/gs1.h"

#include <gmock/gmock.h>

#include <cmath>
#include <random>

namespace awizo::papers {
namespace {

/// The rule in other words: with the check digit, the digits in odd places from the right count
/// once and those between count three times, and the whole is a multiple of ten.
bool isWhole(const std::string& number) {
  int sum = 0;
  int weight = 1;
  for (auto digit = number.rbegin(); digit != number.rend(); ++digit) {
    sum += (*digit - '0') * weight;
    weight = 4 - weight;
  }
  return sum % 10 == 0;
}

TEST(Gs1, AgreesWithASecondWayToReckonTheCheckDigit) {
  std::mt19937 random(20261122);
  for (int i = 0; i < 10'000; ++i) {
    const std::size_t length = std::vector<std::size_t>{8, 12, 13, 14, 18}[random() % 5];
    std::string number;
    while (number.size() < length) number += static_cast<char>('0' + random() % 10);
    ASSERT_EQ(hasRightCheckDigit(number), isWhole(number)) << number;
    for (char last = '0'; last <= '9'; ++last) {
      number.back() = last;
      ASSERT_EQ(hasRightCheckDigit(number), isWhole(number)) << number;
    }
  }
}

TEST(Gs1, KnowsNumbersOfPackages) {
  EXPECT_TRUE(isContainerNumber("395200010000000011"));
  EXPECT_TRUE(isContainerNumber("354123450000000014"));
  EXPECT_FALSE(isContainerNumber("395200010000000012"));
  EXPECT_FALSE(isContainerNumber("39520001000000001"));
  EXPECT_FALSE(isContainerNumber("39520001000000001A"));
  EXPECT_FALSE(isContainerNumber("000000000000000000"));
  EXPECT_FALSE(isContainerNumber(""));
}

TEST(Gs1, FillsProductNumbersToFourteenDigits) {
  EXPECT_EQ(productNumber("9520001010019"), "09520001010019");
  EXPECT_EQ(productNumber("95050003"), "00000095050003");
  EXPECT_EQ(productNumber("614141000036"), "00614141000036");
  EXPECT_EQ(productNumber("10614141000415"), "10614141000415");
}

TEST(Gs1, TakesNoProductNumberThatOthersDoNotKnow) {
  EXPECT_EQ(productNumber("9520001010018"), "") << "wrong check digit";
  EXPECT_EQ(productNumber("ABC"), "");
  EXPECT_EQ(productNumber(""), "");
  EXPECT_EQ(productNumber("2000000000008"), "") << "a shop's own";
  EXPECT_EQ(productNumber("0400000000008"), "") << "a shop's own";
  EXPECT_EQ(productNumber("90614141000411"), "") << "goods that vary in weight";
}

TEST(Gs1, ALabelNeedsWhatItsValuesBelongTo) {
  const Gs1Elements package{{"00", "395200010000000011"}};
  const Gs1Elements content{{"02", "09520001010019"}, {"37", "24"}};
  EXPECT_EQ(labelRefusal({package}), "");
  EXPECT_EQ(labelRefusal({content, package}), "");
  EXPECT_NE(labelRefusal({content}), "");
  EXPECT_NE(labelRefusal({}), "");
  EXPECT_NE(labelRefusal({package, {}}), "");
  EXPECT_NE(labelRefusal({package, {{"02", "09520001010019"}}}), "");
  EXPECT_NE(labelRefusal({package, {{"37", "24"}}}), "");
  EXPECT_NE(labelRefusal({package, {{"02", "09520001010018"}, {"37", "24"}}}), "");
  EXPECT_NE(labelRefusal({package, {{"02", "09520001010019"}, {"37", "024"}}}), "");
  EXPECT_NE(labelRefusal({package, {{"02", "09520001010019"}, {"37", "123456789"}}}), "");
  EXPECT_NE(labelRefusal({package, {{"99", "1"}}}), "") << "an unknown identifier";
  EXPECT_NE(labelRefusal({{{"00", "395200010000000012"}}}), "");
}

TEST(Gs1, ASymbolHoldsNoMoreThan48Characters) {
  const Gs1Element package{"00", "395200010000000011"};
  EXPECT_EQ(labelRefusal({{package, package}}), "");
  EXPECT_NE(labelRefusal({{package, package, package}}), "");
}

TEST(Gs1, ModulesAreWholeDotsAndWideEnough) {
  EXPECT_DOUBLE_EQ(moduleWidth(203), 0.5);
  EXPECT_DOUBLE_EQ(moduleWidth(300), 6 * 25.4 / 300);
  EXPECT_DOUBLE_EQ(moduleWidth(600), 12 * 25.4 / 600);
  for (int dots = 150; dots <= 2400; ++dots) {
    const double module = moduleWidth(dots);
    const double count = dots == 203 ? module * 8 : module * dots / 25.4;
    EXPECT_NEAR(count, std::round(count), 1e-9) << dots;
    EXPECT_GE(module, leastModule) << dots;
    EXPECT_LE(module, widestModule) << dots;
  }
}

}  // namespace
}  // namespace awizo::papers
