#include "support/scripted_screen.h"

#include <gtest/gtest-spi.h>

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>

#include "form_fixture.h"

namespace awizo::test {
namespace {

const MessageBox question{"Продолжить?", "VIRD", BoxIcon::question, BoxButtons::yesNo};

TEST(ScriptedScreenTest, QuestionWithoutAnAnswerFailsTheTest) {
  EXPECT_NONFATAL_FAILURE(
      {
        ScriptedScreen face;
        Screen screen(face);
        EXPECT_EQ(screen.messageBox(question), Answer::no);
      },
      "a question without an answer: VIRD|question|YesNo|Продолжить?");
}

TEST(ScriptedScreenTest, AnswerThatNobodyAskedForFailsTheTest) {
  EXPECT_NONFATAL_FAILURE(
      {
        ScriptedScreen face;
        face.answer(Answer::yes);
      },
      "1 answers weren't asked for");
}

TEST(ScriptedScreenTest, ModalFormThatStaysOpenFailsTheTest) {
  EXPECT_NONFATAL_FAILURE(
      {
        ScriptedScreen face;
        Screen screen(face);
        Form dialog(screen, "Dialog");
        face.onModal([] {});
        dialog.showModal();
        EXPECT_FALSE(dialog.shown());
      },
      "the modal form Dialog stays open");
}

TEST(ScriptedScreenTest, SeenBoxesAreNotedInTheNamedFile) {
  const char* before = std::getenv("AWIZO_SEEN_BOXES");
  const std::string kept = before == nullptr ? "" : before;
  const std::string file = testing::TempDir() + "seen_boxes.txt";
  std::remove(file.c_str());
  setenv("AWIZO_SEEN_BOXES", file.c_str(), 1);
  {
    ScriptedScreen face;
    Screen screen(face);
    screen.showCritical("one\r\ntwo\rthree", "VIRD");
    screen.showExclamation("Внимание", "");
  }
  setenv("AWIZO_SEEN_BOXES", kept.c_str(), 1);
  std::ifstream seen(file, std::ios::binary);
  const std::string noted{std::istreambuf_iterator<char>(seen), {}};
  EXPECT_EQ(noted, "VIRD\tone\\r\\ntwo\\rthree\nVIRDDesAdv\tВнимание\n");
  std::remove(file.c_str());
}

}  // namespace
}  // namespace awizo::test
