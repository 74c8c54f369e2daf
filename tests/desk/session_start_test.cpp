#include "desk/session_start.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "desk/addresses_as_text.h"
#include "desk/host_boxes.h"
#include "session/record/off_line_path.h"
#include "support/control/test_control.h"

namespace awizo::test {
namespace {

using Kind = StartStep::Kind;

/// A host that begins a session on the page of a portal.
class SessionStartTest : public ::testing::Test, public TestControl {
 protected:
  static constexpr const char* origin = "http://firm.example";

  SessionStartTest() {
    preparePage();
    given.pageUrl = page.pageUrl;
    given.cookie = page.pageCookie;
  }
  SessionStart begin() {
    control.UserControl_ReadProperties();
    return {form, given, settings, splitText};
  }
  std::string asked(SessionStart& start) {
    const StartStep step = start.next();
    EXPECT_EQ(step.kind, Kind::ask);
    return step.box.text;
  }

  GivenSession given;
};

TEST_F(SessionStartTest, AsksOnceBeforeAnAddressIsTalkedTo) {
  prepareFolder();
  SessionStart start = begin();
  EXPECT_EQ(asked(start), newAddressQuestion(origin).text);
  start.answer(Answer::yes);
  EXPECT_EQ(start.next().kind, Kind::start);
  EXPECT_EQ(begin().next().kind, Kind::start);
}

TEST_F(SessionStartTest, OfAnAddressThatIsNotTrustedIsRefused) {
  prepareFolder();
  SessionStart start = begin();
  asked(start);
  start.answer(Answer::no);
  EXPECT_EQ(start.next().kind, Kind::refuse);
  EXPECT_EQ(start.next().refusal,
            "Сеанс со службой не начат: её адресу не доверено. Ничего не отправлено.");
  SessionStart again = begin();
  EXPECT_EQ(asked(again), newAddressQuestion(origin).text) << "no is kept for no other time";
}

TEST_F(SessionStartTest, TalksToNobodyOffLineAndWithoutACookie) {
  prepareFolder();
  bag.values["OnLine"] = "Off";
  EXPECT_EQ(begin().next().kind, Kind::start);
  bag.values["OnLine"] = "On";
  given.cookie.reset();
  EXPECT_EQ(begin().next().kind, Kind::start);
}

TEST_F(SessionStartTest, AsksForAFolderAfterTheAddress) {
  SessionStart start = begin();
  EXPECT_EQ(asked(start), newAddressQuestion(origin).text);
  start.answer(Answer::yes);
  EXPECT_EQ(asked(start), folderRequest().text);
  start.answer(Answer::ok);
  EXPECT_EQ(start.next().kind, Kind::chooseFolder);
  keepOffLinePath(settings, "c:\\VIRD");
  EXPECT_EQ(start.next().kind, Kind::start);
}

TEST_F(SessionStartTest, WithoutAFolderIsRefused) {
  given.cookie.reset();
  SessionStart start = begin();
  asked(start);
  start.answer(Answer::ok);
  EXPECT_EQ(start.next().kind, Kind::chooseFolder);
  EXPECT_EQ(start.next().kind, Kind::refuse);
  EXPECT_EQ(start.next().refusal, "Сеанс не начат: папка с файлами вашей фирмы не выбрана.");
}

TEST_F(SessionStartTest, OffLineIsThatOfAPartner) {
  given = offLineSession({"9520002000019", "Магазин"});
  EXPECT_EQ(given.property("OnLine"), "Off");
  EXPECT_EQ(given.property("PartnerILN"), "9520002000019");
  EXPECT_EQ(given.property("PartnerName"), "Магазин");
  EXPECT_FALSE(given.pageUrl);
}

}  // namespace
}  // namespace awizo::test
