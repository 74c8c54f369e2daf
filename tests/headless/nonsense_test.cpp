// Lines that ask for nothing that can be done are refused one by one, and the program goes on.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "headless/sample_conversation.h"

namespace awizo::headless::test {
namespace {

class Nonsense : public testing::TestWithParam<std::string> {
 protected:
  SampleConversation talk;
};

TEST_P(Nonsense, IsRefusedChangesNothingAndTheProgramGoesOn) {
  const Json before = talk.play({R"({"get":"Main"})", R"({"get":"field"})"}).back();
  const std::vector<Json> lines = talk.play({GetParam(), R"({"get":"field"})"});
  ASSERT_EQ(lines.size(), 2U);
  EXPECT_EQ(lines[0]["ok"], false);
  EXPECT_FALSE(lines[0]["error"].get<std::string>().empty());
  EXPECT_EQ(lines[1], before);
}

INSTANTIATE_TEST_SUITE_P(NotEvenJson, Nonsense,
                         testing::Values("", "   ", "nonsense", "{", R"({"get":"field"}})",
                                         R"({"get":)", "[]", "null", "42", R"("get")",
                                         R"([{"get":"field"}])", "{\"get\":\"fi\xFFld\"}",
                                         R"({"do":"type","on":"field","text":"\ud800"})",
                                         R"({"do":"spin","on":"spin","by":1e999})",
                                         std::string("{\"get\":\"f\0\"}", 12)));

INSTANTIATE_TEST_SUITE_P(OfNoKind, Nonsense,
                         testing::Values("{}", R"({"id":1})", R"({"answer":"OK"})",
                                         R"({"do":"click"})",
                                         R"({"get":"field","do":"click","on":"button"})",
                                         R"({"do":7})", R"({"get":null})", R"({"call":["x"]})",
                                         R"({"call":"Unknown"})", R"({"do":"fly","on":"button"})",
                                         R"({"get":"nobody"})", R"({"get":"No.field"})",
                                         R"({"get":"Main.nobody"})", R"({"get":"Dialog."})",
                                         R"({"get":"."})", R"({"get":""})"));

INSTANTIATE_TEST_SUITE_P(
    OfWrongTypes, Nonsense,
    testing::Values(
        R"({"do":"click","on":7})", R"({"do":"type","on":"field"})",
        R"({"do":"type","on":"field","text":5})", R"({"do":"type","on":"field","text":"a\u0000b"})",
        R"({"do":"choose","on":"list","row":"0"})", R"({"do":"choose","on":"list","row":0.5})",
        R"({"do":"cell","on":"table","row":1})",
        R"({"do":"cell","on":"table","row":99999999999,"col":1})",
        R"({"do":"cell","on":"table","row":99999999999999999999999,"col":1})",
        R"({"do":"cell","on":"table","row":-99999999999,"col":1})",
        R"({"do":"key","on":"field","code":70000})", R"({"do":"key","on":"field","code":-1})",
        R"({"do":"key","on":"field","code":13,"shift":1})",
        R"({"do":"date","on":"date","value":"21.11.2026"})",
        R"({"do":"date","on":"date","value":"2026-02-30"})",
        R"({"do":"date","on":"date","value":20261121})", R"({"do":"date","on":"date"})",
        R"({"do":"time","on":"time","value":"24:00"})",
        R"({"do":"time","on":"time","value":"1:5"})", R"({"do":"close","on":"nobody"})",
        R"({"do":"close","on":"button"})"));

INSTANTIATE_TEST_SUITE_P(
    ThatTheKindOfControlCantDo, Nonsense,
    testing::Values(
        R"({"do":"click","on":"field"})", R"({"do":"click","on":"label"})",
        R"({"do":"doubleClick","on":"field"})", R"({"do":"type","on":"button","text":"a"})",
        R"({"do":"choose","on":"field","row":0})", R"({"do":"date","on":"time","value":null})",
        R"({"do":"time","on":"date","value":null})",
        R"({"do":"cell","on":"field","row":1,"col":1})", R"({"do":"key","on":"label","code":13})",
        R"({"do":"focus","on":"picture"})", R"({"do":"focus","on":"frame"})",
        R"({"do":"spin","on":"field","by":1})",
        R"({"do":"select","on":"list","row":1,"col":0,"rowSel":1,"colSel":0})",
        R"({"do":"scroll","on":"list","top":1})", R"({"do":"path","on":"list","value":"c:"})"));

TEST(Line, OfSomeMegabytesWorks) {
  SampleConversation talk;
  const std::string text(5'000'000, 'x');
  const Json closing = talk.closingOf(R"({"do":"type","on":"list","text":")" + text + R"("})");
  EXPECT_EQ(closing["ok"], true);
  EXPECT_EQ(talk.form.list.text().size(), text.size());
}

TEST(Line, OverTheLimitIsRefusedAndTheNextOneWorks) {
  SampleConversation talk;
  const std::string text(Lines::longestLine, 'x');
  const std::vector<Json> lines =
      talk.playText(R"({"do":"type","on":"list","text":")" + text + "\"}\n{\"get\":\"focus\"}\n");
  ASSERT_EQ(lines.size(), 2U);
  EXPECT_EQ(lines[0]["ok"], false);
  EXPECT_EQ(lines[1]["ok"], true);
}

TEST(Line, NestedAMillionDeepIsRefused) {
  SampleConversation talk;
  const std::string deep(1'000'000, '[');
  EXPECT_EQ(talk.closingOf(R"({"get":"field","id":)" + deep)["ok"], false);
  const std::string closed = deep + std::string(1'000'000, ']');
  EXPECT_EQ(talk.closingOf(R"({"get":"field","id":)" + closed + "}")["ok"], false);
}

TEST(Line, MayEndWithCarriageReturnOrWithTheInput) {
  SampleConversation talk;
  const std::vector<Json> lines = talk.playText("{\"get\":\"focus\"}\r\n{\"get\":\"focus\"}");
  ASSERT_EQ(lines.size(), 2U);
  EXPECT_EQ(lines[0]["ok"], true);
  EXPECT_EQ(lines[1]["ok"], true);
}

TEST(Line, GetsItsIdBackWhateverItIs) {
  SampleConversation talk;
  EXPECT_EQ(talk.closingOf(R"({"id":1,"do":"click","on":"button"})").dump(),
            R"({"ok":true,"id":1})");
  EXPECT_EQ(talk.closingOf(R"({"id":"a","get":"focus"})").dump(),
            R"({"ok":true,"id":"a","value":"button"})");
  const Json refused = talk.closingOf(R"({"id":[1,null],"get":"nobody"})");
  EXPECT_EQ(refused["id"].dump(), "[1,null]");
  EXPECT_EQ(refused["ok"], false);
}

}  // namespace
}  // namespace awizo::headless::test
