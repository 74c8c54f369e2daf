#include "desk/box_advice.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/run_time_error.h"
#include "service/transport.h"
#include "support/test_editor.h"

namespace awizo::test {
namespace {

using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;

std::string adviceOn(std::string text, BoxIcon icon = BoxIcon::critical) {
  return awizo::adviceOn({std::move(text), "VIRD", icon, BoxButtons::ok});
}

TEST(BoxAdvice, SaysWhetherADocumentMayHaveArrived) {
  EXPECT_THAT(adviceOn("The download of the specified resource has failed."),
              HasSubstr("он мог дойти"));
  EXPECT_THAT(adviceOn("Произошла ошибка:-1"), HasSubstr("он мог дойти"));
  EXPECT_THAT(adviceOn("Произошла ошибка:ERR"), HasSubstr("не приняла"));
  EXPECT_THAT(adviceOn("The system cannot locate the resource specified."),
              HasSubstr("Ничего не отправлено"));
}

TEST(BoxAdvice, KnowsTheErrorsOfFiles) {
  for (const RunTimeError& error : {errors::permissionDenied(), errors::pathNotFound(),
                                    errors::fileNotFound(), errors::diskFull()}) {
    EXPECT_THAT(adviceOn(error.description()), Not(IsEmpty())) << error.description();
  }
}

TEST(BoxAdvice, SaysNothingOfBoxesThatSpeakForThemselves) {
  EXPECT_EQ(adviceOn("Документ отправлен.", BoxIcon::information), "");
  EXPECT_EQ(adviceOn("Permission denied", BoxIcon::exclamation), "");
  EXPECT_EQ(adviceOn("Overflow"), "");
}

}  // namespace
}  // namespace awizo::test
