#include "session/record/countries.h"

namespace awizo::test {
namespace {

TEST(Countries, AreCodesByTheirIndex) {
  const std::vector<std::string> codes{"RU", "BY", "KZ", "CN", "LV", "LT", "PL", "UA", "FI", "EE"};
  for (std::int16_t index = 0; index < 10; ++index) {
    EXPECT_EQ(symbolKraj(index, "DE"), codes[static_cast<std::size_t>(index)]);
    EXPECT_EQ(indexKraj(codes[static_cast<std::size_t>(index)]), index);
  }
}

TEST(Countries, ATypedTextIsItsOwnCode) {
  EXPECT_EQ(symbolKraj(-1, "Deutschland"), "Deutschland");
  EXPECT_EQ(symbolKraj(-1, ""), "");
}

TEST(Countries, PastTheListThereIsNoCode) {
  EXPECT_EQ(symbolKraj(10, "DE"), "");
  EXPECT_EQ(symbolKraj(32767, "DE"), "");
  EXPECT_EQ(symbolKraj(-2, "DE"), "");
}

TEST(Countries, CaseMattersInACode) {
  EXPECT_EQ(indexKraj("ru"), -1);
  EXPECT_EQ(indexKraj(""), -1);
  EXPECT_EQ(indexKraj("DE"), -1);
}

}  // namespace
}  // namespace awizo::test
