#include "journal/tape.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "journal/state_digest.h"
#include "platform/forms/keys.h"
#include "support/control/taped_control.h"

namespace awizo::test {
namespace {

bool isDigest(const journal::Record& record) { return record.kind == journal::RecordKind::digest; }

std::uint64_t digestOf(TapedControl& session) { return journal::stateDigest(session.desk.control); }

TEST(Tape, AReplayNeedsNeitherFilesNorSettings) {
  MemoryRecord record;
  TapedControl recorded(&record);
  startOffLine(recorded);
  recorded.desk.form.txtNrAwiza.userType("ТН/1");
  TapedControl replayed(nullptr, sessionIn(record).records);
  replayed.recording->start();
  EXPECT_EQ(replayed.desk.form.txtNrAwiza.text(), "ТН/1");
  EXPECT_EQ(replayed.desk.session.SellerName, "ООО Поставщик");
  EXPECT_EQ(digestOf(replayed), digestOf(recorded));
}

TEST(Tape, ActsThatWereRefusedAreNoActs) {
  MemoryRecord record;
  TapedControl recorded(&record);
  startOffLine(recorded);
  EXPECT_THROW(recorded.doHostAct({"refused"}), Refused);
  EXPECT_THROW(recorded.doHostAct({"error"}), RunTimeError);
  EXPECT_EQ(sessionIn(record).deeds, 2U);
  TapedControl replayed(nullptr, sessionIn(record).records);
  replayed.recording->start();
  EXPECT_EQ(replayed.tape.deeds(), 2U);
}

TEST(Tape, AFullDiskEndsTheRecordWithOneWordAndNotTheWork) {
  MemoryRecord record;
  TapedControl recorded(&record);
  startOffLine(recorded);
  std::vector<std::string> words;
  recorded.tape.onTrouble = [&](const RunTimeError& error) {
    words.push_back(error.description());
  };
  record.room = record.bytes.size() + 100;
  for (const char* text : {"1", "22", "333", "4444", "55555"}) {
    recorded.desk.form.txtNrAwiza.userType(text);
  }
  EXPECT_EQ(words, std::vector<std::string>{"Disk full"});
  EXPECT_EQ(recorded.desk.form.txtNrAwiza.text(), "55555");

  TapedControl replayed(nullptr, sessionIn(record).records);
  replayed.recording->start();
  EXPECT_EQ(replayed.desk.form.txtNrAwiza.text(), "1");
}

TEST(Tape, WhatTheServiceGivesOnceIsOnTheDiskAtOnce) {
  MemoryRecord record;
  TapedControl recorded(&record);
  startOffLine(recorded);
  recorded.desk.http.reply("<order/>");
  const int before = record.flushes;
  recorded.recording->doHostAct({"ask"}, [&] {
    const auto request = recorded.platform->platform.http.createRequest();
    request->open("POST", "http://firm.example/order");
    request->send("");
    EXPECT_EQ(record.flushes, before);
    EXPECT_EQ(request->responseText(), "<order/>");
    EXPECT_EQ(record.flushes, before + 1);
    EXPECT_NE(record.bytes.find("<order/>"), std::string::npos);
  });
}

TEST(Tape, AReplayOfAnotherStateStops) {
  MemoryRecord record;
  TapedControl recorded(&record);
  startOffLine(recorded);
  for (int act = 0; act < 70; ++act) {
    recorded.desk.form.txtNrAwiza.userType(std::to_string(act));
  }
  auto records = sessionIn(record).records;
  const auto last = std::find_if(records.rbegin(), records.rend(), isDigest);
  ASSERT_NE(last, records.rend());
  last->numbers.front() ^= 1;
  const auto deeds = std::count_if(records.begin(), last.base(), journal::isDeed);
  EXPECT_GT(deeds, 48);
  TapedControl replayed(nullptr, records);
  try {
    replayed.recording->start();
    FAIL() << "nothing differs";
  } catch (const journal::ReplayDiffers& differs) {
    EXPECT_EQ(differs.what, "another state");
    EXPECT_EQ(differs.deed, static_cast<std::size_t>(deeds));
  }
}

TEST(Tape, AStartOfAnotherStateStopsToo) {
  MemoryRecord record;
  TapedControl recorded(&record);
  startOffLine(recorded);
  recorded.desk.form.txtNrAwiza.userType("1");
  auto records = sessionIn(record).records;
  const auto kept = std::ranges::find_if(records, [](const journal::Record& outcome) {
    return !outcome.texts.empty() && outcome.texts[0].find("ООО Поставщик") != std::string::npos;
  });
  ASSERT_NE(kept, records.end());
  kept->texts[0].replace(kept->texts[0].find("7700000001"), 10, "7700000009");
  TapedControl replayed(nullptr, records);
  EXPECT_THROW(replayed.recording->start(), journal::ReplayDiffers);
}

/// Its pickers show the time at which it was made, which a replay can't have.
TEST(Tape, AControlThatWasOnlyMadeProvesNothing) {
  MemoryRecord record;
  TapedControl recorded(&record);
  recorded.desk.prepareFolder();
  recorded.recording->start();
  EXPECT_EQ(std::ranges::count_if(sessionIn(record).records, isDigest), 0);
  recorded.show();
  EXPECT_EQ(std::ranges::count_if(sessionIn(record).records, isDigest), 1);
}

TEST(Tape, ADigestProvesAllButTheLastActs) {
  MemoryRecord record;
  TapedControl recorded(&record);
  startOffLine(recorded);
  for (int act = 1; act <= 200; ++act) {
    recorded.desk.form.txtNrAwiza.userType(std::to_string(act));
    const auto records = sessionIn(record).records;
    const auto last = std::find_if(records.rbegin(), records.rend(), isDigest);
    EXPECT_LE(std::count_if(records.rbegin(), last, journal::isDeed), act / 4) << act;
  }
  const auto records = sessionIn(record).records;
  EXPECT_LT(std::ranges::count_if(records, isDigest), 25) << "it is dear";
}

TEST(Tape, ARecordThatAsksSomethingElseStops) {
  MemoryRecord record;
  TapedControl recorded(&record);
  startOffLine(recorded);
  auto records = sessionIn(record).records;
  std::erase_if(records, [](const journal::Record& outcome) {
    return outcome.kind == journal::RecordKind::outcome &&
           outcome.numbers.front() == static_cast<int>(journal::Source::readFile);
  });
  TapedControl replayed(nullptr, records);
  EXPECT_THROW(replayed.recording->start(), journal::ReplayDiffers);
}

TEST(Tape, TheHeightOfAViewIsReplayed) {
  MemoryRecord record;
  TapedControl recorded(&record);
  startOffLine(recorded);
  Table& countries = recorded.desk.control.dlgIsoCodes.grdISO;
  countries.setViewHeight(1200);
  recorded.desk.face.onModal([&] {
    countries.userKey(keys::pageDown);
    recorded.desk.control.dlgIsoCodes.userClose();
  });
  recorded.desk.form.Image2.userClick();

  TapedControl replayed(nullptr, sessionIn(record).records);
  replayed.recording->start();
  EXPECT_EQ(replayed.desk.control.dlgIsoCodes.grdISO.row(), countries.row());
  EXPECT_GT(countries.row(), 1);
}

TEST(Tape, AFormThatItsHostHidIsHiddenAgain) {
  MemoryRecord record;
  TapedControl recorded(&record);
  startOffLine(recorded);
  DlgIsoCodes& countries = recorded.desk.control.dlgIsoCodes;
  recorded.desk.face.onModal([&] { countries.hide(); });
  recorded.desk.form.Image2.userClick();
  recorded.desk.form.txtNrAwiza.userType("ТН/1");

  TapedControl replayed(nullptr, sessionIn(record).records);
  replayed.recording->start();
  EXPECT_FALSE(replayed.desk.control.dlgIsoCodes.shown());
  EXPECT_EQ(replayed.desk.form.txtNrAwiza.text(), "ТН/1");
  EXPECT_EQ(digestOf(replayed), digestOf(recorded));
}

TEST(Tape, WhatTheHostDoesForItselfStandsOnNoTape) {
  MemoryRecord record;
  TapedControl recorded(&record);
  startOffLine(recorded);
  const std::size_t before = record.bytes.size();
  recorded.platform->platform.files.folderExists("c:\\VIRD");
  recorded.platform->platform.clock.now();
  EXPECT_EQ(record.bytes.size(), before);
}

TEST(Tape, ALineTakesNoMoreOfTheRecordForTheLinesBeforeIt) {
  MemoryRecord record;
  TapedControl recorded(&record);
  startOffLine(recorded);
  const auto bytesOfALine = [&] {
    const std::size_t before = record.bytes.size();
    recorded.desk.face.onModal([&] {
      DlgDodaj& line = recorded.desk.control.dlgDodaj;
      line.txtlEANProdWart.userType("4607000000116");
      line.txtNazwaProdWart.userType("Чай");
      line.txtIloscPotw.userType("1");
      line.btnDodaj.userClick();
    });
    recorded.desk.form.btnDodaj.userClick();
    return record.bytes.size() - before;
  };
  const std::size_t bytesOfTheFirst = bytesOfALine();
  std::size_t bytesOfTheLast = 0;
  for (int line = 2; line <= 20; ++line) bytesOfTheLast = bytesOfALine();
  ASSERT_EQ(recorded.desk.session.LineCount, 20);
  EXPECT_LT(bytesOfTheLast, bytesOfTheFirst + 50);
}

TEST(Tape, TheLogGoesOnAfterAReplay) {
  MemoryRecord record;
  TapedControl recorded(&record);
  recorded.desk.bag.values["DebugLevel"] = "4";
  startOffLine(recorded);
  ASSERT_TRUE(recorded.desk.files.has(TestControl::logFile));

  TapedControl replayed(nullptr, sessionIn(record).records);
  replayed.desk.files.putFolder("c:\\VIRD");
  replayed.desk.files.put(TestControl::logFile, "before\r\n");
  replayed.recording->start();
  EXPECT_EQ(replayed.desk.logText(), "before\r\n");
  replayed.desk.session.log.WriteDebugLine("after", 2);
  EXPECT_TRUE(replayed.desk.logText().starts_with("before\r\n"));
  EXPECT_TRUE(replayed.desk.logText().ends_with("after\r\n"));
}

}  // namespace
}  // namespace awizo::test
