#include "papers/digit_symbols.h"

#include <gtest/gtest.h>

#include "platform/run_time_error.h"

namespace awizo::papers {
namespace {

TEST(DigitSymbols, HaveAsManyModulesAsTheirDigitsNeed) {
  const DigitSymbols symbols;
  EXPECT_EQ(symbols.gs1Symbol("(00)395200010000000011").size(), 156U);
  EXPECT_EQ(symbols.gs1Symbol("(02)09520001010019(37)24").size(), 156U);
  EXPECT_EQ(symbols.gs1Symbol("(02)09520001010019(37)7").size(), 167U);
  EXPECT_EQ(symbols.gs1Symbol("(37)24(00)395200010000000011").size(), 189U);
}

TEST(DigitSymbols, RefuseAllButDigits) {
  for (const char* elements : {"(400)AB1", "395200010000000011", "(00", "(00)", "()", "(37)1 "}) {
    EXPECT_THROW(DigitSymbols().gs1Symbol(elements), RunTimeError) << elements;
  }
}

}  // namespace
}  // namespace awizo::papers
