#include "foundation/conversions_in_place.h"

#include <gtest/gtest.h>

#include "foundation/session.h"
#include "support/error_of.h"

namespace awizo::test {
namespace {

class ConversionsInPlace : public testing::Test {
 protected:
  Session russian{"ru_RU"};
  Session american{"en_US"};
  const Conversions& ru = russian.conversions;
  const Conversions& us = american.conversions;
};

TEST_F(ConversionsInPlace, NormalizeDecimalLeavesTheLocalesSeparatorWithTheCaller) {
  for (const char* typed : {"1,5", "1.5"}) {
    std::string text = typed;
    EXPECT_EQ(NormalizeDecimal(ru, text, 3), "1,500");
    EXPECT_EQ(text, "1,5");
    text = typed;
    EXPECT_EQ(NormalizeDecimal(us, text, 3), "1.500");
    EXPECT_EQ(text, "1.5");
  }
}

TEST_F(ConversionsInPlace, NormalizeDecimalChangesTheTextBeforeItFails) {
  std::string text = "1.5";
  EXPECT_EQ(errorNumberOf([&] { NormalizeDecimal(ru, text, -1); }), 5);
  EXPECT_EQ(text, "1,5");
}

TEST_F(ConversionsInPlace, FormatForXmlLeavesTheScreenNumberWithTheCaller) {
  std::string text = "12";
  EXPECT_EQ(FormatForXml(ru, text, 2), "12.00");
  EXPECT_EQ(text, "12,00");
  text = "12";
  EXPECT_EQ(FormatForXml(us, text, 2), "12.00");
  EXPECT_EQ(text, "12.00");
}

TEST_F(ConversionsInPlace, FormatForXmlMarksAnEmptyTextWithTheCallerToo) {
  std::string text;
  EXPECT_EQ(FormatForXml(ru, text, 3), "-1");
  EXPECT_EQ(text, "-1");
}

TEST_F(ConversionsInPlace, MyDoubleLeavesTheLocalesSeparatorWithTheCaller) {
  std::string text = "1.5";
  EXPECT_EQ(MyDouble(ru, text), 1.5);
  EXPECT_EQ(text, "1,5");
}

}  // namespace
}  // namespace awizo::test
