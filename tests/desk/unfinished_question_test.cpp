#include "desk/unfinished_question.h"

#include <gtest/gtest.h>

namespace awizo::test {
namespace {

journal::UnfinishedWork work() {
  return {"a.record", {"ТН-6", "ЗК-1", "23:14", 25, 12, true}, false};
}

TEST(UnfinishedQuestion, NamesTheDocumentItsTimeAndHowFarItIs) {
  EXPECT_TRUE(
      unfinishedQuestion(work()).text.starts_with("Продолжить ТН-6 от 23:14, упаковано 12 из 25?"));
}

TEST(UnfinishedQuestion, KnowsADocumentWithoutANumber) {
  journal::UnfinishedWork unnamed = work();
  unnamed.summary.number.clear();
  EXPECT_TRUE(unfinishedQuestion(unnamed).text.starts_with("Продолжить документ без номера от "));
}

TEST(UnfinishedQuestion, CountsNoLinesWhereThereAreNone) {
  journal::UnfinishedWork order{"a.record", {"", "", "23:14", 0, 0, false}, false, true};
  EXPECT_TRUE(unfinishedQuestion(order).text.starts_with(
      "Продолжить полученный заказ от 23:14?\r\n\r\n«Начать"));
  order.summary.number = "ТН-6";
  EXPECT_TRUE(unfinishedQuestion(order).text.starts_with("Продолжить ТН-6 от 23:14?"));
}

TEST(UnfinishedQuestion, SaysWhatMayHaveArrived) {
  EXPECT_EQ(unfinishedQuestion(work()).text.find("мог дойти"), std::string::npos);
  journal::UnfinishedWork sent = work();
  sent.mayHaveArrived = true;
  EXPECT_NE(unfinishedQuestion(sent).text.find("мог дойти"), std::string::npos);
}

TEST(UnfinishedQuestion, LosesNothingByEnterOrEscape) {
  EXPECT_EQ(unfinishedQuestion(work()).harmless, Choice::later);
}

}  // namespace
}  // namespace awizo::test
