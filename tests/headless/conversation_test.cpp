// The order of events and closing lines, message boxes, modal forms and the end of input.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "headless/sample_conversation.h"
#include "platform/run_time_error.h"

namespace awizo::headless::test {
namespace {

std::vector<std::string> texts(const std::vector<Json>& lines) {
  std::vector<std::string> result;
  for (const Json& line : lines) result.push_back(line.dump());
  return result;
}

class ConversationTest : public testing::Test {
 protected:
  /// Plays the lines; the input ends under an open box or form.
  std::vector<std::string> playAbandoned(const std::vector<std::string>& lines) {
    EXPECT_THROW(talk.play(lines), InputEnded);
    return texts(talk.output());
  }
  std::vector<std::string> play(const std::vector<std::string>& lines) {
    return texts(talk.play(lines));
  }

  SampleConversation talk;
};

TEST_F(ConversationTest, ClickThatOpensADialogClosesAfterAllThatWasDoneInTheDialog) {
  talk.form.button.onClick = [&] { talk.dialog.showModal(); };
  EXPECT_EQ(play({R"({"id":1,"do":"click","on":"button"})",
                  R"({"id":2,"do":"click","on":"Dialog.close"})"}),
            (std::vector<std::string>{R"({"event":"modal","form":"Dialog","caption":"A dialog"})",
                                      R"({"event":"hidden","form":"Dialog"})",
                                      R"({"ok":true,"id":2})", R"({"ok":true,"id":1})"}));
}

TEST_F(ConversationTest, ModalEventStandsBeforeWhatTheFormDoesWhenItIsShown) {
  talk.form.button.onClick = [&] { talk.dialog.showModal(); };
  talk.dialog.onActivate = [&] { talk.sample.screen.showCritical("At once", "VIRD"); };
  const auto lines = play(
      {R"({"do":"click","on":"button"})", R"({"answer":"OK"})", R"({"do":"close","on":"Dialog"})"});
  ASSERT_EQ(lines.size(), 6U);
  EXPECT_EQ(lines[0], R"({"event":"modal","form":"Dialog","caption":"A dialog"})");
  EXPECT_EQ(
      lines[1],
      R"({"event":"message","text":"At once","title":"VIRD","icon":"critical","buttons":"OK"})");
  EXPECT_EQ(lines[3], R"({"event":"hidden","form":"Dialog"})");
}

TEST_F(ConversationTest, BoxIsAnsweredByTheNextLineAndItsClosingLineComesFirst) {
  Answer given = Answer::ok;
  talk.form.button.onClick = [&] {
    given = talk.sample.screen.messageBox(
        {"One\rtwo\r\nthree", "VIRD", BoxIcon::question, BoxButtons::yesNo});
  };
  EXPECT_EQ(
      play({R"({"id":1,"do":"click","on":"button"})", R"({"id":2,"answer":"Yes"})"}),
      (std::vector<std::string>{
          R"({"event":"message","text":"One\rtwo\r\nthree","title":"VIRD","icon":"question","buttons":"YesNo"})",
          R"({"ok":true,"id":2})", R"({"ok":true,"id":1})"}));
  EXPECT_EQ(given, Answer::yes);
}

TEST_F(ConversationTest, EveryIconHasItsName) {
  std::vector<std::string> icons;
  for (const BoxIcon icon : {BoxIcon::none, BoxIcon::critical, BoxIcon::question,
                             BoxIcon::exclamation, BoxIcon::information}) {
    talk.form.button.onClick = [&] {
      talk.sample.screen.messageBox({"Text", "", icon, BoxButtons::ok});
    };
    const auto lines = talk.play({R"({"do":"click","on":"button"})", R"({"answer":"OK"})"});
    icons.push_back(lines[0]["icon"]);
    EXPECT_EQ(lines[0]["title"], "VIRDDesAdv");
  }
  EXPECT_EQ(icons, (std::vector<std::string>{"none", "critical", "question", "exclamation",
                                             "information"}));
}

TEST_F(ConversationTest, OpenBoxTakesOnlyItsAnswersAndGets) {
  talk.form.button.onClick = [&] {
    talk.sample.screen.messageBox({"Sure?", "VIRD", BoxIcon::none, BoxButtons::yesNo});
  };
  talk.sample.dispatcher.procedures.add("Now", [] { return 1; });
  const auto lines = talk.play(
      {R"({"do":"click","on":"button"})", R"({"do":"type","on":"field","text":"a"})",
       R"({"call":"Now"})", R"({"answer":"OK"})", R"({"answer":"yes"})", R"({"answer":1})",
       "nonsense", R"({"get":"field"})", R"({"answer":"No"})", R"({"answer":"No"})"});
  std::vector<bool> outcomes;
  for (const Json& line : lines) {
    if (line.contains("ok")) outcomes.push_back(line["ok"]);
  }
  EXPECT_EQ(outcomes,
            (std::vector<bool>{false, false, false, false, false, false, true, true, true, false}));
  EXPECT_EQ(talk.form.field.text(), "");
}

TEST_F(ConversationTest, FormBehindAModalOneTakesNoInput) {
  talk.form.button.onClick = [&] { talk.dialog.showModal(); };
  const auto lines =
      talk.play({R"({"do":"click","on":"button"})", R"({"do":"type","on":"field","text":"a"})",
                 R"({"get":"field"})", R"({"do":"close","on":"Dialog"})"});
  EXPECT_EQ(lines[1]["ok"], false);
  EXPECT_EQ(lines[2]["value"]["text"], "");
}

TEST_F(ConversationTest, FormsOverFormsCloseLastOpenedFirst) {
  protocol::test::SampleDialog second(talk.sample.screen, talk.sample.files);
  Form inner(talk.sample.screen, "Inner");
  Button innerClose(inner, "close");
  innerClose.onClick = [&] { inner.hide(); };
  talk.sample.directory.add(inner, nullptr);
  talk.conversation.watch(inner);
  talk.form.button.onClick = [&] { talk.dialog.showModal(); };
  talk.dialog.close.onClick = [&] {
    inner.showModal();
    talk.dialog.hide();
  };
  EXPECT_EQ(
      play({R"({"id":1,"do":"click","on":"button"})",
            R"({"id":2,"do":"click","on":"Dialog.close"})",
            R"({"id":3,"do":"click","on":"Inner.close"})"}),
      (std::vector<std::string>{R"({"event":"modal","form":"Dialog","caption":"A dialog"})",
                                R"({"event":"modal","form":"Inner","caption":""})",
                                R"({"event":"hidden","form":"Inner"})", R"({"ok":true,"id":3})",
                                R"({"event":"hidden","form":"Dialog"})", R"({"ok":true,"id":2})",
                                R"({"ok":true,"id":1})"}));
}

TEST_F(ConversationTest, EndOfInputUnderABoxGivesUpAndSaysNothingMore) {
  bool wentOn = false;
  talk.form.button.onClick = [&] {
    talk.dialog.showModal();
    wentOn = true;
  };
  talk.dialog.close.onClick = [&] {
    talk.sample.screen.showCritical("Text", "VIRD");
    wentOn = true;
  };
  const auto lines =
      playAbandoned({R"({"do":"click","on":"button"})", R"({"do":"click","on":"Dialog.close"})"});
  EXPECT_EQ(lines.size(), 2U);
  EXPECT_FALSE(wentOn);
}

TEST_F(ConversationTest, EndOfTheProgramIsTold) {
  EXPECT_THROW(talk.conversation.endProgram(), ProgramEnded);
  EXPECT_EQ(talk.out.str(), "{\"event\":\"end\"}\n");
}

TEST_F(ConversationTest, ErrorThatLeavesAProcedureHasItsNumber) {
  talk.sample.dispatcher.procedures.add("Fail", [] { throw errors::overflow(); });
  EXPECT_EQ(talk.closingOf(R"({"id":5,"call":"Fail"})").dump(),
            R"({"ok":false,"id":5,"error":"Overflow","number":6})");
}

TEST_F(ConversationTest, OutputThatNobodyReadsIsLostInSilence) {
  talk.out.setstate(std::ios::badbit);
  talk.form.button.onClick = [&] { talk.form.label.setCaption("Clicked"); };
  talk.play({R"({"do":"click","on":"button"})"});
  EXPECT_EQ(talk.form.label.caption(), "Clicked");
}

const Question goOnQuestion{.text = "Go on?", .choices = {Choice::goOn, Choice::later}};

TEST_F(ConversationTest, QuestionIsAnsweredByAChoiceOfItsOwn) {
  talk.in.str("{\"id\":1,\"answer\":\"save\"}\n{\"id\":2,\"answer\":\"later\"}\n");
  EXPECT_EQ(talk.conversation.choose(goOnQuestion), Choice::later);
  EXPECT_EQ(texts(talk.output()),
            (std::vector<std::string>{
                R"({"event":"question","text":"Go on?","icon":"question","harmless":"cancel",)"
                R"("choices":[{"choice":"goOn","words":"&Продолжить"},)"
                R"({"choice":"later","words":"О&тложить"}]})",
                R"({"ok":false,"id":1,"error":"The question has no such choice."})",
                R"({"ok":true,"id":2})"}));
}

TEST_F(ConversationTest, LinesBeforeAQuestionsAnswerAreServedAfterIt) {
  talk.in.str("{\"id\":1,\"get\":\"focus\"}\nno line\n{\"id\":2,\"answer\":\"goOn\"}\n");
  EXPECT_EQ(talk.conversation.choose(goOnQuestion), Choice::goOn);
  EXPECT_EQ(talk.output().size(), 2U);
  talk.conversation.run();
  const std::vector<Json> lines = talk.output();
  ASSERT_EQ(lines.size(), 4U);
  EXPECT_EQ(lines[2].value("id", 0), 1);
  EXPECT_FALSE(lines[3].value("ok", true));
}

TEST_F(ConversationTest, InputThatEndsUnderAQuestionEndsAll) {
  talk.in.str("{\"get\":\"focus\"}\n");
  EXPECT_THROW(talk.conversation.choose(goOnQuestion), InputEnded);
}

}  // namespace
}  // namespace awizo::headless::test
