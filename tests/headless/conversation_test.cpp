// The order of events and closing lines, message boxes, modal forms and the end of input.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "headless/sample_desk.h"
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
    EXPECT_THROW(desk.play(lines), InputEnded);
    return texts(desk.output());
  }
  std::vector<std::string> play(const std::vector<std::string>& lines) {
    return texts(desk.play(lines));
  }

  SampleDesk desk;
};

TEST_F(ConversationTest, ClickThatOpensADialogClosesAfterAllThatWasDoneInTheDialog) {
  desk.form.button.onClick = [&] { desk.dialog.showModal(); };
  EXPECT_EQ(play({R"({"id":1,"do":"click","on":"button"})",
                  R"({"id":2,"do":"click","on":"Dialog.close"})"}),
            (std::vector<std::string>{R"({"event":"modal","form":"Dialog","caption":"A dialog"})",
                                      R"({"event":"hidden","form":"Dialog"})",
                                      R"({"ok":true,"id":2})", R"({"ok":true,"id":1})"}));
}

TEST_F(ConversationTest, ModalEventStandsBeforeWhatTheFormDoesWhenItIsShown) {
  desk.form.button.onClick = [&] { desk.dialog.showModal(); };
  desk.dialog.onActivate = [&] { desk.screen.showCritical("At once", "VIRD"); };
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
  desk.form.button.onClick = [&] {
    given =
        desk.screen.messageBox({"One\rtwo\r\nthree", "VIRD", BoxIcon::question, BoxButtons::yesNo});
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
    desk.form.button.onClick = [&] { desk.screen.messageBox({"Text", "", icon, BoxButtons::ok}); };
    const auto lines = desk.play({R"({"do":"click","on":"button"})", R"({"answer":"OK"})"});
    icons.push_back(lines[0]["icon"]);
    EXPECT_EQ(lines[0]["title"], "VIRDDesAdv");
  }
  EXPECT_EQ(icons, (std::vector<std::string>{"none", "critical", "question", "exclamation",
                                             "information"}));
}

TEST_F(ConversationTest, OpenBoxTakesOnlyItsAnswersAndGets) {
  desk.form.button.onClick = [&] {
    desk.screen.messageBox({"Sure?", "VIRD", BoxIcon::none, BoxButtons::yesNo});
  };
  desk.desk.procedures.add("Now", [] { return 1; });
  const auto lines = desk.play(
      {R"({"do":"click","on":"button"})", R"({"do":"type","on":"field","text":"a"})",
       R"({"call":"Now"})", R"({"answer":"OK"})", R"({"answer":"yes"})", R"({"answer":1})",
       "nonsense", R"({"get":"field"})", R"({"answer":"No"})", R"({"answer":"No"})"});
  std::vector<bool> outcomes;
  for (const Json& line : lines) {
    if (line.contains("ok")) outcomes.push_back(line["ok"]);
  }
  EXPECT_EQ(outcomes,
            (std::vector<bool>{false, false, false, false, false, false, true, true, true, false}));
  EXPECT_EQ(desk.form.field.text(), "");
}

TEST_F(ConversationTest, FormBehindAModalOneTakesNoInput) {
  desk.form.button.onClick = [&] { desk.dialog.showModal(); };
  const auto lines =
      desk.play({R"({"do":"click","on":"button"})", R"({"do":"type","on":"field","text":"a"})",
                 R"({"get":"field"})", R"({"do":"close","on":"Dialog"})"});
  EXPECT_EQ(lines[1]["ok"], false);
  EXPECT_EQ(lines[2]["value"]["text"], "");
}

TEST_F(ConversationTest, FormsOverFormsCloseLastOpenedFirst) {
  SampleDialog second(desk.screen, desk.files);
  Form inner(desk.screen, "Inner");
  Button innerClose(inner, "close");
  innerClose.onClick = [&] { inner.hide(); };
  desk.forms.add(inner, nullptr);
  desk.conversation.watch(inner);
  desk.form.button.onClick = [&] { desk.dialog.showModal(); };
  desk.dialog.close.onClick = [&] {
    inner.showModal();
    desk.dialog.hide();
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
  desk.form.button.onClick = [&] {
    desk.dialog.showModal();
    wentOn = true;
  };
  desk.dialog.close.onClick = [&] {
    desk.screen.showCritical("Text", "VIRD");
    wentOn = true;
  };
  const auto lines =
      playAbandoned({R"({"do":"click","on":"button"})", R"({"do":"click","on":"Dialog.close"})"});
  EXPECT_EQ(lines.size(), 2U);
  EXPECT_FALSE(wentOn);
}

TEST_F(ConversationTest, EndOfTheProgramIsTold) {
  EXPECT_THROW(desk.conversation.endProgram(), ProgramEnded);
  EXPECT_EQ(desk.out.str(), "{\"event\":\"end\"}\n");
}

TEST_F(ConversationTest, ErrorThatLeavesAProcedureHasItsNumber) {
  desk.desk.procedures.add("Fail", [] { throw errors::overflow(); });
  EXPECT_EQ(desk.closingOf(R"({"id":5,"call":"Fail"})").dump(),
            R"({"ok":false,"id":5,"error":"Overflow","number":6})");
}

TEST_F(ConversationTest, OutputThatNobodyReadsIsLostInSilence) {
  desk.out.setstate(std::ios::badbit);
  desk.form.button.onClick = [&] { desk.form.label.setCaption("Clicked"); };
  desk.play({R"({"do":"click","on":"button"})"});
  EXPECT_EQ(desk.form.label.caption(), "Clicked");
}

}  // namespace
}  // namespace awizo::headless::test
