#include "packagedialog/package_types.h"

#include "adapters/icu/icu_locale.h"

namespace awizo::test {
namespace {

TEST(PackageType, HasACodeForEachRow) {
  EXPECT_THAT(packageTypeRows(), testing::ElementsAre("Паллета", "Коробка", "Возвратная тара"));
  EXPECT_EQ(symbolPackageType(0), "09");
  EXPECT_EQ(symbolPackageType(1), "201");
  EXPECT_EQ(symbolPackageType(2), "PK");
}

TEST(PackageType, HasNoCodeForOtherIndexes) {
  EXPECT_EQ(symbolPackageType(-1), "");
  EXPECT_EQ(symbolPackageType(-2), "");
  EXPECT_EQ(symbolPackageType(3), "");
  EXPECT_EQ(symbolPackageType(32767), "");
}

TEST(PackageType, IsFoundByItsCodeWithoutRegardToCase) {
  const IcuLocale locale("ru_RU");
  EXPECT_EQ(indexPackageType(locale, "09"), 0);
  EXPECT_EQ(indexPackageType(locale, "201"), 1);
  EXPECT_EQ(indexPackageType(locale, "PK"), 2);
  EXPECT_EQ(indexPackageType(locale, "pk"), 2);
  EXPECT_EQ(indexPackageType(locale, "pK"), 2);
}

TEST(PackageType, HasNoOtherCodes) {
  const IcuLocale locale("ru_RU");
  for (const char* code : {"", "9", "009", "09 ", "РК", "201a", "²01"}) {
    EXPECT_EQ(indexPackageType(locale, code), -1) << code;
  }
}

}  // namespace
}  // namespace awizo::test
