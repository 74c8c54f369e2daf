#include <gtest/gtest.h>

#include "journal/state_digest.h"
#include "support/control/taped_control.h"

namespace awizo::test {
namespace {

TEST(HostActs, AreDoneAgainByAReplayOfItself) {
  MemoryRecord record;
  TapedControl recorded(&record);
  recorded.desk.prepareFolder();
  recorded.desk.files.put(TestControl::partnerFile, TestControl::partnerInfo("ООО Покупатель"));
  recorded.desk.bag.values["OnLine"] = "Off";
  recorded.recording->start();
  recorded.recording->show();
  recorded.recording->setProperty("DebugLevel", "3");
  recorded.desk.face.onModal(
      [&] { recorded.desk.control.dlgWczytajZapisz.ImageZamknij.userClick(); });
  recorded.recording->askOffLineFolder();
  recorded.recording->setProperty("OnLine", "On");

  TapedControl replayed(nullptr, sessionIn(record).records);
  replayed.recording->performHostAct = nullptr;
  replayed.recording->start();
  EXPECT_TRUE(replayed.desk.form.shown());
  EXPECT_EQ(replayed.desk.control.DebugLevel(), "3");
  EXPECT_EQ(replayed.desk.control.OnLine(), "On");
  EXPECT_EQ(journal::stateDigest(replayed.desk.control),
            journal::stateDigest(recorded.desk.control));
}

TEST(HostActs, OfAnotherKindOfHostEndTheReplay) {
  MemoryRecord record;
  TapedControl recorded(&record);
  recorded.recording->start();
  recorded.recording->doHostAct({"call", "{}"}, [] {});
  TapedControl replayed(nullptr, sessionIn(record).records);
  replayed.recording->performHostAct = nullptr;
  EXPECT_THROW(replayed.recording->start(), journal::ReplayDiffers);
}

}  // namespace
}  // namespace awizo::test
