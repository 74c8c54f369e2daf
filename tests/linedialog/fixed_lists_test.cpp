#include "linedialog/fixed_lists.h"

#include "support/test_editor.h"

namespace awizo::test {
namespace {

using ::testing::ElementsAre;
using ::testing::SizeIs;

TEST(FixedLists, UnitsHaveACodeForEachRow) {
  const IcuLocale russian("ru_RU");
  EXPECT_THAT(unitRows(), SizeIs(9));
  EXPECT_EQ(unitRows()[7], "Тонна");
  EXPECT_EQ(unitCode(7), "TNE");
  EXPECT_EQ(unitIndex(russian, "tne"), 7);
  EXPECT_EQ(unitCode(9), "");
  EXPECT_EQ(unitCode(-1), "");
  EXPECT_EQ(unitIndex(russian, "Тонна"), -1);
}

TEST(FixedLists, AnyCategoryButTheFirstIsE) {
  const IcuLocale russian("ru_RU");
  EXPECT_THAT(taxCategoryRows(), ElementsAre("S", "E"));
  EXPECT_EQ(taxCategoryCode(0), "S");
  EXPECT_EQ(taxCategoryCode(1), "E");
  EXPECT_EQ(taxCategoryCode(2), "E");
  EXPECT_EQ(taxCategoryCode(-2), "E");
  EXPECT_EQ(taxCategoryIndex(russian, "e"), 1);
  EXPECT_EQ(taxCategoryIndex(russian, ""), -1);
}

TEST(FixedLists, RatesAreTextsToTheCharacter) {
  EXPECT_THAT(taxRateRows(), ElementsAre("0", "10", "18"));
  EXPECT_EQ(taxRateCode(1), "10");
  EXPECT_EQ(taxRateCode(3), "");
  EXPECT_EQ(taxRateCode(-1), "");
  EXPECT_EQ(taxRateIndex("18"), 2);
  EXPECT_EQ(taxRateIndex("18,00"), -1);
}

}  // namespace
}  // namespace awizo::test
