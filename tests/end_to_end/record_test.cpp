// A session is recorded into a file, and replayed from it by another run of the program.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "support/files/files.h"
#include "support/supplier/supplier.h"

namespace awizo::test {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;
namespace fs = std::filesystem;

/// All that the program tells of its forms and its record; what a replay takes from today left out.
Json wholeState(Conversation& editor) {
  Json state;
  for (const std::string form : {"AwizoWysylki", "DlgDodaj", "DlgdodajPule", "DlgSzczegoly",
                                 "DlgIsoCodes", "DlgWczytajZapisz"}) {
    const Json shown = editor.get(form);
    for (const std::string control : shown["controls"]) state[control] = editor.get(control);
    state[form] = shown;
  }
  for (const std::string name : {"session", "control", "focus", "cursor", "settings"}) {
    state[name] = editor.get(name);
  }
  state["session"].erase("SessionCookie");
  return state;
}

class RecordTest : public testing::TestWithParam<const char*> {
 protected:
  Supplier supplier{GetParam()};
  DemoService service{supplier.place.posted()};
  const std::string record = (supplier.place.documents() / "session.record").string();

  Conversation startRecorded() { return supplier.startOnLine(service, {"--record", record}); }

  static Conversation replay(const std::string& file, std::vector<std::string> more = {}) {
    more.insert(more.begin(), {"--replay", file});
    return Conversation(more);
  }

  /// From the order to a line in a package.
  static void work(Conversation& editor) {
    editor.show();
    completeHeader(editor);
    addPackage(editor, "Паллета 1", serials[0]);
    packLine(editor, 1, "Паллета 1");
    editor.setDate("txtDataAwiza", "2026-11-22");
    editor.call("QuickSort", Json::array({Json::array({"b", "a"}), Json::array({0, 1}), 0, 1}));
    editor.act({{"do", "set"}, {"property", "DebugLevel"}, {"value", "3"}});
  }

  std::string number(std::string_view withPoint) const { return supplier.number(withPoint); }
};

INSTANTIATE_TEST_SUITE_P(BothLocales, RecordTest, testing::Values("ru_RU", "en_US"));

TEST_P(RecordTest, AReplayEndsInTheSameStateAndAsksNobody) {
  Conversation editor = startRecorded();
  work(editor);
  const Json state = wholeState(editor);
  editor.program().kill();
  const std::size_t requests = service.requests().size();

  Conversation again = replay(record);
  EXPECT_EQ(wholeState(again), state);
  EXPECT_THAT(again.takeEvents(), IsEmpty());
  EXPECT_EQ(service.requests().size(), requests);
  EXPECT_EQ(again.finish(), 0);
}

TEST_P(RecordTest, AScannedUnitIsReplayedWithoutTheScannersSwitch) {
  Conversation editor = startRecorded();
  editor.act({{"do", "followDesk"}});
  work(editor);
  const auto packed = [&] { return editor.cellText("grdPozycje", 2, 21); };
  EXPECT_EQ(packed(), number("0.000"));
  editor.perform("scannerPacks");
  for (const char digit : editor.cellText("grdPozycje", 2, 1)) editor.key("grdPozycje", digit);
  editor.key("grdPozycje", 13);
  EXPECT_EQ(packed(), number("1.000"));
  const Json atEnd = wholeState(editor);
  editor.program().kill();
  Conversation other = replay(record);
  EXPECT_EQ(wholeState(other), atEnd);
}

TEST_P(RecordTest, TheWorkGoesOnAfterAReplayWithTodaysPageAndCookie) {
  Conversation editor = startRecorded();
  work(editor);
  editor.program().kill();

  const DemoService today(supplier.place.documents() / "today");
  Conversation again = replay(record, {"--page-url", today.pageUrl(), "--cookie", "session=2"});
  again.click("btnPrzeslij");
  again.answer("Yes");
  EXPECT_THAT(again.answerAll(), testing::Contains("VIRD|information|Документ отправлен."));
  EXPECT_EQ(today.posted().size(), 1U);
  EXPECT_THAT(service.posted(), IsEmpty());
  EXPECT_EQ(today.requests().back()["cookie"], "session=2");
  EXPECT_EQ(again.finish(), 0);
}

TEST_P(RecordTest, WhatWasSentIsNotSentAgain) {
  Conversation editor = startRecorded();
  work(editor);
  editor.click("btnPrzeslij");
  editor.answerAll();
  const Json state = wholeState(editor);
  editor.program().kill();

  Conversation again = replay(record);
  EXPECT_EQ(wholeState(again), state);
  EXPECT_EQ(service.posted().size(), 1U);
}

TEST_P(RecordTest, WhatWasSavedIsNotSavedAgain) {
  const fs::path file = supplier.place.documents() / "a.xml";
  Conversation editor = startRecorded();
  work(editor);
  openSavingAgain(editor);
  saveAs(editor, file.string());
  editor.answerAll();
  const Json state = wholeState(editor);
  editor.program().kill();
  ASSERT_TRUE(fs::remove(file));

  Conversation again = replay(record);
  EXPECT_EQ(wholeState(again), state);
  EXPECT_FALSE(fs::exists(file));
}

TEST_P(RecordTest, OnlyTheFirstActsAreReplayedWhereSoManyAreAskedFor) {
  Conversation editor = startRecorded();
  editor.show();
  editor.type("txtNrAwiza", "1");
  EXPECT_NE(editor.refused({{"do", "type"}, {"on", "txtEdycja"}, {"text", "1"}}), "");
  EXPECT_NE(editor.refused({{"do", "show"}}), "");
  EXPECT_NE(editor.refused({{"call", "Nothing"}}), "");
  editor.get("txtNrAwiza");
  editor.type("txtNrAwiza", "2");
  editor.type("txtNrAwiza", "3");
  editor.program().kill();

  EXPECT_FALSE(replay(record, {"--acts", "0"}).get("AwizoWysylki")["shown"]);
  EXPECT_EQ(replay(record, {"--acts", "1"}).text("txtNrAwiza"), "");
  EXPECT_EQ(replay(record, {"--acts", "3"}).text("txtNrAwiza"), "2");
  EXPECT_EQ(replay(record, {"--acts", "99"}).text("txtNrAwiza"), "3");
}

TEST_P(RecordTest, AReplayThatEndsInADialogOpensItAgain) {
  Conversation editor = startRecorded();
  editor.show();
  addPackage(editor, "Паллета 1", serials[0]);
  editor.cell("grdPozycje", 1, 1);
  editor.click("btnEdytuj");
  editor.click("DlgDodaj.Command1");
  const Json state = wholeState(editor);
  editor.program().kill();

  Conversation again = replay(record);
  EXPECT_EQ(wholeState(again), state);
  again.click("DlgdodajPule.btnZamknij");
  again.click("DlgDodaj.btnZamknij");
  EXPECT_EQ(again.finish(), 0);
  std::vector<std::string> seen;
  for (const Json& event : again.takeEvents()) {
    seen.push_back(std::string(event["event"]) + " " + std::string(event["form"]));
  }
  EXPECT_THAT(seen, testing::ElementsAre("modal DlgDodaj", "modal DlgdodajPule",
                                         "hidden DlgdodajPule", "hidden DlgDodaj"));
}

TEST_P(RecordTest, AReplayThatEndsUnderABoxAsksAgain) {
  Conversation editor = startRecorded();
  work(editor);
  editor.click("btnPrzeslij");
  const std::string box = editor.openBox();
  editor.program().kill();

  Conversation again = replay(record);
  again.get("focus");
  EXPECT_EQ(again.openBox(), box);
  again.answer("No");
  EXPECT_EQ(again.finish(), 0);
  EXPECT_THAT(service.posted(), IsEmpty());
}

TEST_P(RecordTest, ARecordOfAReplayHoldsBoth) {
  Conversation editor = startRecorded();
  work(editor);
  editor.program().kill();

  const std::string second = record + "2";
  Conversation again = replay(record, {"--record", second});
  again.type("txtCodeByBuyer", "5");
  const Json state = wholeState(again);
  again.program().kill();

  Conversation third = replay(second);
  EXPECT_EQ(wholeState(third), state);
  EXPECT_EQ(third.finish(), 0);
}

TEST_P(RecordTest, AReplayInAnotherStateSaysSoAndEnds) {
  Conversation editor = startRecorded();
  editor.show();
  for (int text = 0; text < 70; ++text) editor.type("txtNrAwiza", std::to_string(text));
  editor.program().kill();

  ChildProcess program(headlessCommand({"--replay", record, "--property", "PartnerName=Other"}));
  program.closeInput();
  EXPECT_EQ(program.waitForEnd(), 4);
}

TEST_P(RecordTest, HoldsNoCookieAndIsItsOwnersAlone) {
  Conversation editor = startRecorded();
  work(editor);
  editor.finish();
  EXPECT_THAT(readFile(record), testing::Not(HasSubstr("user=anna")));
  EXPECT_EQ(fs::status(record).permissions(), fs::perms::owner_read | fs::perms::owner_write);
}

TEST_P(RecordTest, ThatIsThereAlreadyIsLeftAlone) {
  writeFile(record, "something");
  ChildProcess program(headlessCommand({"--record", record}));
  EXPECT_EQ(program.waitForEnd(), 2);
  EXPECT_EQ(readFile(record), "something");
}

TEST_P(RecordTest, ThatIsNoneIsRefused) {
  writeFile(record, "something");
  ChildProcess program(headlessCommand({"--replay", record}));
  EXPECT_EQ(program.waitForEnd(), 2);
  ChildProcess missing(headlessCommand({"--replay", record + "x"}));
  EXPECT_EQ(missing.waitForEnd(), 2);
  ChildProcess acts(headlessCommand({"--acts", "1"}));
  EXPECT_EQ(acts.waitForEnd(), 2);
}

/// The same work, made off line: header fields and one package.
void expectWorkOfTheSample(const std::string& name) {
  const fs::path file = projectFolder() / "tests/journal/samples" / name;
  Conversation editor({"--replay", file.string()});
  EXPECT_EQ(editor.text("txtNrAwiza"), "ТН/7");
  EXPECT_EQ(editor.get("txtEstimatedDeliveryDate")["date"], "2026-11-30");
  EXPECT_EQ(editor.cellText("grdOpakowania", 1, 3), "Паллета 1");
  EXPECT_EQ(editor.get("settings")["OffLinePath"], "c:\\VIRD");
  EXPECT_EQ(editor.get("control")["DebugLevel"], "2");
  EXPECT_EQ(editor.finish(), 0);
}

TEST(RecordFormats, TheFirstIsReplayed) { expectWorkOfTheSample("format-1.record"); }

TEST(RecordFormats, TheSecondIsReplayedWithTheTextsBesideIt) {
  expectWorkOfTheSample("format-2.record");
}

TEST(RecordFormats, TheSecondWithoutTheTextsBesideItSaysWhereItsReplayEnds) {
  const Workplace place;
  const std::string alone = (place.folder() / "alone.record").string();
  writeFile(alone, readFile(projectFolder() / "tests/journal/samples/format-2.record"));
  ChildProcess program(headlessCommand({"--replay", alone}));
  program.closeInput();
  EXPECT_EQ(program.waitForEnd(), 4);
}

}  // namespace
}  // namespace awizo::test
