// The program's promises to the program that drives it: start, end, exit statuses, properties, and
// that nothing said to it makes it fall.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <random>
#include <string>
#include <vector>

#include "support/supplier/supplier.h"

namespace awizo::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
namespace fs = std::filesystem;

TEST(Start, WithBadArgumentsEndsWithStatus2) {
  for (const std::vector<std::string>& options :
       std::vector<std::vector<std::string>>{{"--unknown", "1"},
                                             {"--property", "Other=1"},
                                             {"--now", "yesterday"},
                                             {"--cookie"},
                                             {"stray"}}) {
    Conversation editor(options);
    EXPECT_EQ(editor.program().waitForEnd(), 2);
  }
}

TEST(Start, CreatesTheControlAndReadsItsProperties) {
  const Supplier supplier;
  Conversation editor = supplier.startOffLine({"--property", "DebugLevel=x"});
  const Json control = editor.get("control");
  EXPECT_EQ(control["OnLine"], "Off");
  EXPECT_EQ(control["DebugLevel"], "");
  EXPECT_EQ(control["PartnerName"], "Demo");
  EXPECT_EQ(control["PartnerILN"], "9520002000019");
  EXPECT_EQ(control["PartnerURL"], "partner");
  EXPECT_EQ(control["Enabled"], true);
  EXPECT_EQ(control["GridRowHeight"], 240);
  EXPECT_EQ(editor.get("session")["BuyerILN"], "9520002000019");
  EXPECT_EQ(editor.get("session")["DecimalSeparator"], ",");
  EXPECT_EQ(editor.get("DlgDodaj")["LinePartnerName"], "Demo");
  EXPECT_EQ(editor.get("AwizoWysylki")["shown"], false);
  EXPECT_EQ(editor.get("bag"), Json::object());
}

TEST(Start, BeforeShowNothingCanBeDoneOnTheForm) {
  const Supplier supplier;
  Conversation editor = supplier.startOffLine();
  editor.refused({{"do", "click"}, {"on", "btnDodajOpak"}});
  editor.refused({{"do", "offlineFolder"}});
  EXPECT_EQ(editor.call("indexKraj", {"BY"}), 1);
  editor.show();
  editor.refused({{"do", "show"}});
}

TEST(Start, ShowsOnceHoweverOftenItIsAskedToUnlessShown) {
  const Supplier supplier;
  Conversation editor = supplier.startOffLine();
  editor.act({{"do", "showUnlessShown"}});
  EXPECT_EQ(editor.get("AwizoWysylki")["shown"], true);
  editor.type("txtNrAwiza", "5");
  editor.act({{"do", "showUnlessShown"}});
  EXPECT_EQ(editor.text("txtNrAwiza"), "5");
}

TEST(Start, MayBeFollowedByTheEndAtOnce) {
  const Supplier supplier;
  Conversation editor = supplier.startOffLine();
  editor.act({{"do", "terminate"}});
  EXPECT_EQ(editor.get("settings")["OffLinePath"], "");
  EXPECT_EQ(editor.finish(), 0);
}

TEST(Properties, OnLineAndDebugLevelAreSetAndReportedAsChanged) {
  const Supplier supplier;
  Conversation editor = supplier.startOffLine();
  editor.act({{"do", "set"}, {"property", "OnLine"}, {"value", "On"}});
  editor.act({{"do", "set"}, {"property", "DebugLevel"}, {"value", 4}});
  std::vector<std::string> changed;
  for (const Json& event : editor.takeEvents()) changed.push_back(event["property"]);
  EXPECT_THAT(changed, ElementsAre("OnLine", "DebugLevel"));
  EXPECT_EQ(editor.caption("lblOnLineStatus"), "On-Line");
  EXPECT_EQ(editor.get("control")["DebugLevel"], "4");
  editor.refused({{"do", "set"}, {"property", "PartnerILN"}, {"value", "1"}});
  editor.refused({{"do", "set"}, {"property", "Unknown"}, {"value", "1"}});
  editor.refused({{"do", "set"}, {"property", "OnLine"}, {"value", true}});
  EXPECT_EQ(editor.get("control")["PartnerILN"], "9520002000019");
}

TEST(End, ByTerminateWritesTheBagAndAllowsOnlyGets) {
  const Supplier supplier;
  Conversation editor = supplier.startOffLine({"--property", "DebugLevel=2"});
  editor.show();
  editor.act({{"do", "terminate"}});
  EXPECT_EQ(editor.get("bag"), (Json{{"DebugLevel", "2"}, {"OnLine", "Off"}}));
  EXPECT_EQ(editor.get("settings")["OffLinePath"], supplier.place.folder().string());
  editor.refused({{"do", "terminate"}});
  editor.refused({{"do", "click"}, {"on", "btnDodajOpak"}});
  editor.refused({{"do", "set"}, {"property", "OnLine"}, {"value", "On"}});
  editor.refused({{"call", "indexKraj"}, {"args", {"BY"}}});
  EXPECT_EQ(editor.finish(), 0);
}

TEST(End, OfTheInputTakesTheControlDown) {
  const Supplier supplier;
  const fs::path settings = supplier.place.settings();
  Conversation editor = supplier.startOffLine({"--settings", settings.string()});
  editor.show();
  fs::remove(settings);
  EXPECT_EQ(editor.finish(), 0);
  EXPECT_TRUE(fs::exists(settings));
}

TEST(End, UnderABoxOrAFormHasStatus3AndDoesNothingMore) {
  const Supplier supplier;
  const fs::path settings = supplier.place.settings();
  {
    Conversation editor = supplier.startOffLine({"--settings", settings.string()});
    editor.show();
    editor.click("btnZapisz");
    EXPECT_EQ(editor.openBox().find("VIRD|exclamation|"), 0U);
    fs::remove(settings);
    editor.program().closeInput();
    EXPECT_EQ(editor.program().waitForEnd(), 3);
    EXPECT_FALSE(fs::exists(settings));
  }
  Conversation editor = supplier.startOffLine({"--settings", settings.string()});
  editor.show();
  editor.click("btnDodajOpak");
  fs::remove(settings);
  editor.program().closeInput();
  EXPECT_FALSE(editor.program().readLine());
  EXPECT_EQ(editor.program().waitForEnd(), 3);
  EXPECT_FALSE(fs::exists(settings));
}

TEST(End, TerminateUnderAModalFormIsRefused) {
  const Supplier supplier;
  Conversation editor = supplier.startOffLine();
  editor.show();
  editor.click("btnDodajOpak");
  editor.refused({{"do", "terminate"}});
  editor.refused({{"do", "offlineFolder"}});
  editor.click("DlgSzczegoly.btnZamknij");
  editor.act({{"do", "terminate"}});
  EXPECT_EQ(editor.finish(), 0);
}

TEST(End, OfTheReaderIsNoReasonToFall) {
  const Supplier supplier;
  Conversation editor = supplier.startOffLine();
  editor.show();
  editor.program().closeOutput();
  for (int i = 0; i < 100; ++i) editor.program().write("{\"get\":\"grdPozycje\"}\n");
  editor.program().closeInput();
  EXPECT_EQ(editor.program().waitForEnd(), 0);
}

TEST(Dialogs, AreOpenedAndClosedAsTheProtocolShows) {
  const Supplier supplier;
  Conversation editor = supplier.startOffLine();
  editor.show();
  editor.click("btnDodajOpak");
  EXPECT_EQ(editor.get("DlgSzczegoly")["shown"], true);
  EXPECT_EQ(editor.get("DlgSzczegoly")["AddMode"], true);
  EXPECT_EQ(editor.get("focus"), "DlgSzczegoly.cboxPackageType");
  editor.refused({{"do", "type"}, {"on", "txtNrAwiza"}, {"text", "1"}});
  editor.key("DlgSzczegoly.txtPackageDesc", 27);
  std::vector<std::string> events;
  for (const Json& event : editor.takeEvents()) events.push_back(event.dump());
  EXPECT_THAT(
      events,
      ElementsAre(R"({"event":"modal","form":"DlgSzczegoly","caption":"Добавить упаковку"})",
                  R"({"event":"hidden","form":"DlgSzczegoly"})"));
  EXPECT_EQ(editor.get("DlgSzczegoly")["DialogResult"], 0);
  editor.click("btnDodajOpak");
  editor.close("DlgSzczegoly");
  EXPECT_EQ(editor.get("DlgSzczegoly")["shown"], false);
  EXPECT_EQ(editor.finish(), 0);
}

TEST(Dialogs, AreNotLoadedByAGet) {
  const Supplier supplier;
  Conversation editor = supplier.startOffLine();
  editor.show();
  EXPECT_EQ(editor.get("DlgIsoCodes.grdISO")["cells"][1][0], "");
  EXPECT_EQ(editor.get("DlgDodaj.cboxKodVAT")["rows"], Json::array());
  EXPECT_EQ(editor.get("DlgDodaj")["DlgResult"], 0);
  EXPECT_EQ(editor.get("DlgWczytajZapisz.DirList")["path"], "");
  EXPECT_EQ(editor.call("DlgDodaj.symbolKodVAT", {0}), "S");
  EXPECT_EQ(editor.get("DlgDodaj.cboxKodVAT")["rows"], (Json{"S", "E"}));
}

/// A line made of what a sloppy program might send.
std::string sloppyLine(std::mt19937& random) {
  static const std::vector<std::string> words{
      "do",   "get",  "call",       "answer",     "on",         "text",    "row",        "col",
      "show", "type", "btnDodaj",   "grdPozycje", "txtNrAwiza", "session", "focus",      "args",
      "id",   "set",  "terminated", "value",      "DlgDodaj",   "OK",      "GetBaseUrl", "click"};
  static const std::vector<std::string> values{
      "null", "true",     "-1",   "1e400", "99999999999999999999",
      "[]",   "{}",       "\"\"", "0.5",   "\"\\u0000\"",
      "[[[",  "\xC3\x28", "\"",   "'"};
  const auto pick = [&](const std::vector<std::string>& from) {
    return from[std::uniform_int_distribution<std::size_t>(0, from.size() - 1)(random)];
  };
  std::string line = "{";
  const int members = std::uniform_int_distribution<int>(0, 4)(random);
  for (int i = 0; i < members; ++i) {
    if (i > 0) line += ",";
    line += "\"" + pick(words) + "\":";
    line += random() % 2 == 0 ? "\"" + pick(words) + "\"" : pick(values);
  }
  return line + (random() % 8 == 0 ? "" : "}");
}

TEST(Nonsense, OfAnyKindGetsAnAnswerAndTheProgramGoesOn) {
  const Supplier supplier;
  Conversation editor = supplier.startOffLine();
  std::mt19937 random(20261121);
  for (int i = 0; i < 3000; ++i) {
    const std::string line = sloppyLine(random);
    ASSERT_TRUE(editor.program().write(line + "\n"));
    Json output;
    do {
      const auto text = editor.program().readLine();
      ASSERT_TRUE(text) << line;
      output = Json::parse(*text);
      ASSERT_NE(output.value("event", ""), "message") << line;
    } while (output.contains("event"));
    ASSERT_TRUE(output.contains("ok")) << line;
  }
  EXPECT_EQ(editor.get("control")["Enabled"], true);
  EXPECT_EQ(editor.finish(), 0);
}

/// The events of changes since the last call, as one object of controls.
Json changedControls(Conversation& editor) {
  Json controls = Json::object();
  for (const Json& event : editor.takeEvents()) {
    if (event["event"] == "changes" && event.contains("controls")) {
      for (const auto& [name, facts] : event["controls"].items()) controls[name] = facts;
    }
  }
  return controls;
}

TEST(Feed, AClientThatSubscribesHearsOfAllThatChanges) {
  const Supplier supplier;
  Conversation editor = supplier.startOffLine();
  editor.show();
  EXPECT_THAT(changedControls(editor), IsEmpty());
  editor.act({{"do", "subscribe"}});
  EXPECT_EQ(changedControls(editor)["btnZapisz"]["kind"], "pictureButton");
  editor.type("txtNrAwiza", "1");
  EXPECT_EQ(changedControls(editor)["txtNrAwiza"], Json({{"text", "1"}}));
  editor.act({{"do", "unsubscribe"}});
  editor.type("txtNrAwiza", "2");
  EXPECT_THAT(changedControls(editor), IsEmpty());
}

TEST(Feed, ChangesAreToldBeforeABoxWaitsForItsAnswer) {
  const Supplier supplier;
  Conversation editor = supplier.startOffLine();
  editor.act({{"do", "subscribe"}});
  editor.show();
  editor.type("txtNrAwiza", "1");
  editor.click("btnZapisz");
  EXPECT_NE(editor.openBox(), "");
  EXPECT_TRUE(changedControls(editor).contains("txtNrAwiza"));
  editor.answerAll();
}

TEST(Feed, SubscribingIsNoDeedOfARecord) {
  const Supplier supplier;
  const std::string record = (supplier.place.documents() / "session.record").string();
  {
    Conversation editor = supplier.startOffLine({"--record", record});
    editor.act({{"do", "subscribe"}});
    editor.show();
    editor.type("txtNrAwiza", "1");
    editor.finish();
  }
  Conversation again({"--replay", record, "--acts", "2"});
  EXPECT_EQ(again.text("txtNrAwiza"), "1");
  EXPECT_THAT(again.takeEvents(), IsEmpty());
}

TEST(Commands, AreToldWithTheirButtonsAndKeys) {
  const Supplier supplier;
  Conversation editor = supplier.startOffLine();
  const Json menus = editor.get("commands");
  EXPECT_EQ(menus[0]["heading"], "&Документ");
  const Json save{{"words", "Сохранить"},
                  {"icon", "save"},
                  {"on", "btnZapisz"},
                  {"keys", Json::array({{{"code", 'S'}, {"control", true}, {"shift", false}}})},
                  {"key", "Ctrl+S"},
                  {"place", nullptr},
                  {"inDialogs", false},
                  {"onCurrentRow", false},
                  {"tip", "Сохранить (Ctrl+S)"},
                  {"group", 0}};
  EXPECT_THAT(std::vector<Json>(menus[0]["commands"]), testing::Contains(save));
  EXPECT_EQ(menus[0]["commands"].back()["group"], 1)
      << "a new session is no matter of the document";
}

}  // namespace
}  // namespace awizo::test
