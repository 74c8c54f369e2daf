#include "desk/box_advice.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/forms/report_errors.h"
#include "platform/run_time_error.h"
#include "support/scripted_screen.h"

namespace awizo::test {
namespace {

using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;

std::string adviceOn(std::string text, BoxIcon icon = BoxIcon::critical) {
  return awizo::adviceOn({std::move(text), "VIRD", icon, BoxButtons::ok});
}

class AdvisingFace : public ScriptedScreen {
 public:
  std::string advice;
  Answer ask(const MessageBox& box) override {
    advice = awizo::adviceOn(box);
    return Answer::ok;
  }
};

/// The advice on the box that a procedure's error handler shows.
std::string adviceOn(const RunTimeError& error) {
  AdvisingFace face;
  Screen screen(face);
  reportErrors(screen, "VIRD", [&] { throw error; });
  return face.advice;
}

TEST(BoxAdvice, SaysWhetherADocumentMayHaveArrived) {
  EXPECT_THAT(adviceOn(errors::downloadFailed()), HasSubstr("он мог дойти"));
  EXPECT_THAT(adviceOn("Произошла ошибка:-1"), HasSubstr("он мог дойти"));
  EXPECT_THAT(adviceOn("Произошла ошибка:ERR"), HasSubstr("не приняла"));
  EXPECT_THAT(adviceOn(errors::hostNotFound()), HasSubstr("Ничего не отправлено"));
}

TEST(BoxAdvice, KnowsTheErrorsOfFiles) {
  for (const RunTimeError& error : {errors::permissionDenied(), errors::pathNotFound(),
                                    errors::fileNotFound(), errors::diskFull()}) {
    EXPECT_THAT(adviceOn(error), Not(IsEmpty())) << error.description();
  }
}

TEST(BoxAdvice, SaysNothingOfBoxesThatSpeakForThemselves) {
  EXPECT_EQ(adviceOn("Документ отправлен.", BoxIcon::information), "");
  EXPECT_EQ(adviceOn("Permission denied"), "") << "words alone are no error";
  EXPECT_EQ(adviceOn(errors::overflow()), "");
}

}  // namespace
}  // namespace awizo::test
