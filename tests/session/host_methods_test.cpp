#include "support/control/test_control.h"

namespace awizo::test {
namespace {

TEST(HostMethods, UnitNamesHaveSymbols) {
  const TestControl test;
  const auto symbol = [&](std::string_view name) {
    return test.control.JednostkiMiaryNazwaToSymbol(name);
  };
  EXPECT_EQ(symbol("штука"), "PCE");
  EXPECT_EQ(symbol("Штука"), "PCE");
  EXPECT_EQ(symbol("КИЛОГРАММ"), "KGM");
  EXPECT_EQ(symbol("Метр"), "MTR");
  EXPECT_EQ(symbol("kilometr"), "KMT");
  EXPECT_EQ(symbol("Opakowanie"), "PA");
  EXPECT_EQ(symbol("KOMPLET"), "SET");
  EXPECT_EQ(symbol("para"), "PR");
  EXPECT_EQ(symbol("tona"), "TNE");
  EXPECT_EQ(symbol("литр"), "LTR");
  EXPECT_EQ(symbol("Sztuka"), "Sztuka");
  EXPECT_EQ(symbol("штука "), "штука ");
  EXPECT_EQ(symbol(""), "");
}

}  // namespace
}  // namespace awizo::test
