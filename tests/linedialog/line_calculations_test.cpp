#include "linedialog/line_calculations.h"

#include "support/test_editor.h"

namespace awizo::test {
namespace {

/// Two lists on a form of their own, whose clicks do nothing.
struct VatLists : ::testing::Test {
  TestEditor test;
  Form form{test.screen, "form"};
  DropDownList category{form, "category", "", ListStyle::listOnly};
  DropDownList rate{form, "rate", "", ListStyle::listOnly};

  VatLists() {
    category.setRows({"S", "E"});
    rate.setRows({"0", "10", "18"});
  }
  /// Indexes of the two lists after the check.
  std::pair<int, int> checked(std::int16_t which, int categoryIndex, int rateIndex) {
    category.setIndex(categoryIndex);
    rate.setIndex(rateIndex);
    CheckVAT(which, category, rate);
    return {category.index(), rate.index()};
  }
};

TEST_F(VatLists, AfterCategoryEComesRateZero) {
  EXPECT_EQ(checked(0, 1, 2), std::pair(1, 0));
  EXPECT_EQ(checked(0, 1, 0), std::pair(1, 0));
  EXPECT_EQ(checked(0, 0, 2), std::pair(0, 2));
  EXPECT_EQ(checked(0, -1, 2), std::pair(-1, 2));
}

TEST_F(VatLists, AfterARateAboveZeroComesCategoryS) {
  EXPECT_EQ(checked(1, 1, 1), std::pair(0, 1));
  EXPECT_EQ(checked(1, 1, 2), std::pair(0, 2));
  EXPECT_EQ(checked(1, -1, 1), std::pair(0, 1));
  EXPECT_EQ(checked(1, 1, 0), std::pair(1, 0));
  EXPECT_EQ(checked(1, 1, -1), std::pair(1, -1));
}

TEST_F(VatLists, AnotherNumberChecksNothing) { EXPECT_EQ(checked(2, 1, 2), std::pair(1, 2)); }

TEST(NetAmount, IsTheProductOfBothReadByEitherSeparator) {
  for (const char* name : {"ru_RU", "en_US"}) {
    const TestEditor test(name);
    const Conversions& conversions = test.editor.conversions;
    EXPECT_EQ(MyCalculateAmount(conversions, "1,5", "2.5"),
              "3" + test.session.DecimalSeparator + "75");
    EXPECT_EQ(MyCalculateAmount(conversions, "", "2.5"), "");
    EXPECT_EQ(MyCalculateAmount(conversions, "2", "x"), "");
  }
}

}  // namespace
}  // namespace awizo::test
