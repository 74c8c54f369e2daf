#include <gtest/gtest.h>

#include "journal/loading.h"
#include "journal/record_file.h"
#include "journal/state_digest.h"
#include "support/control/taped_control.h"

namespace awizo::test {
namespace {

/// A record in memory.
struct RecordedBytes : GrowingFile {
  std::string bytes = journal::fileBeginning() + journal::framed(journal::headerRecord({}));
  void append(std::string_view more) override { bytes += more; }
  void flush() override {}
};

TEST(HostActs, AreDoneAgainByAReplayOfItself) {
  RecordedBytes record;
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

  TapedControl replayed(nullptr, journal::recordedSession(record.bytes).records);
  replayed.recording->performHostAct = nullptr;
  replayed.recording->start();
  EXPECT_TRUE(replayed.desk.form.shown());
  EXPECT_EQ(replayed.desk.control.DebugLevel(), "3");
  EXPECT_EQ(replayed.desk.control.OnLine(), "On");
  EXPECT_EQ(journal::stateDigest(replayed.desk.control),
            journal::stateDigest(recorded.desk.control));
}

TEST(HostActs, OfAnotherKindOfHostEndTheReplay) {
  RecordedBytes record;
  TapedControl recorded(&record);
  recorded.recording->start();
  recorded.recording->doHostAct({"call", "{}"}, [] {});
  TapedControl replayed(nullptr, journal::recordedSession(record.bytes).records);
  replayed.recording->performHostAct = nullptr;
  EXPECT_THROW(replayed.recording->start(), journal::ReplayDiffers);
}

}  // namespace
}  // namespace awizo::test
