// What the desk shows beside the forms, through the program that a page drives.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "support/files/files.h"
#include "support/supplier/supplier.h"

namespace awizo::test {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

constexpr int enter = 13;
constexpr int keyEnd = 35;
constexpr int keyHome = 36;
constexpr int f2 = 113;
constexpr int packageDescription = 3;
constexpr int packedQuantity = 21;
constexpr int keyDelete = 46;

struct DeskTest : testing::Test {
  DeskTest() {
    editor.act({{"do", "followDesk"}});
    editor.show();
    editor.takeEvents();
  }
  void press(std::string_view button) { editor.act({{"do", "command"}, {"on", button}}); }
  Json standing() { return editor.get("standing"); }
  void scan(std::string_view code) {
    for (const char digit : code) editor.key("grdPozycje", digit);
    editor.key("grdPozycje", enter);
  }
  int row(std::string_view table) { return editor.get(table)["row"]; }

  Supplier supplier;
  DemoService service{supplier.place.posted()};
  Conversation editor = supplier.startOnLine(service);
};

TEST_F(DeskTest, TellsTheCurrentLineInWords) {
  editor.cell("grdPozycje", 2, 1);
  const std::string second = editor.takeLast("line")["text"];
  EXPECT_THAT(second, HasSubstr("заказано 96 · отгружено 96 · упаковано 0 · осталось 96"));
  editor.cell("grdPozycje", 2, 4);
  EXPECT_EQ(editor.takeLast("line"), Json()) << "it is the same line";
}

TEST_F(DeskTest, TellsHowTheDocumentStands) {
  const Json before = standing();
  EXPECT_THAT(std::string(before["title"]), HasSubstr("ЗК-2026/1147"));
  EXPECT_THAT(std::string(before["status"]), HasSubstr("Получен в "));
  EXPECT_EQ(before["isUnsent"], true) << "the order is handed out once";
  editor.type("txtNrAwiza", "ТН-6");
  EXPECT_THAT(std::string(standing()["title"]), testing::StartsWith("ТН-6 — "));
}

TEST_F(DeskTest, LeadsToALineByATextAndByAScannedCode) {
  editor.perform("findLine");
  editor.type("FindDialog.txtWhat", "1147");
  editor.click("FindDialog.btnFind");
  EXPECT_EQ(editor.caption("FindDialog.lblNothing"), "Такой строки нет.");
  const std::string name = editor.cellText("grdPozycje", 9, 2);
  editor.type("FindDialog.txtWhat", name);
  editor.key("FindDialog.txtWhat", enter);
  EXPECT_EQ(row("grdPozycje"), 9);
  scan(editor.cellText("grdPozycje", 5, 1));
  EXPECT_EQ(row("grdPozycje"), 5);
}

TEST_F(DeskTest, TellsACodeThatNoLineHas) {
  editor.cell("grdPozycje", 1, 1);
  scan("4600000000008");
  EXPECT_EQ(editor.takeLast("line")["text"], "Нет строки с кодом 4600000000008");
}

TEST_F(DeskTest, AScannedProductIsPutInWhileThatIsSwitchedOn) {
  const auto isOn = [this]() -> Json {
    for (const Json& menu : editor.get("commands")) {
      for (const Json& command : menu["commands"]) {
        if (command.value("task", "") == "scannerPacks") return command["isOn"];
      }
    }
    return nullptr;
  };
  addPackage(editor, "Паллета 1", std::string(serials[0]));
  editor.cell("grdOpakowania", 1, packageDescription);
  const std::string ean = editor.cellText("grdPozycje", 5, 1);
  EXPECT_EQ(isOn(), false);
  scan(ean);
  EXPECT_EQ(row("grdPozycje"), 5);
  EXPECT_EQ(editor.cellText("grdPozycje", 5, packedQuantity), "0,000");
  editor.perform("scannerPacks");
  EXPECT_EQ(editor.takeLast("switch"),
            Json({{"event", "switch"}, {"task", "scannerPacks"}, {"isOn", true}}));
  EXPECT_EQ(isOn(), true);
  editor.takeEvents();
  scan(ean);
  scan(ean);
  EXPECT_EQ(editor.cellText("grdPozycje", 5, packedQuantity), "2,000");
  EXPECT_EQ(editor.takeLast("modal"), Json()) << "nobody acts on these dialogs";
  editor.perform("takeBack");
  EXPECT_EQ(editor.cellText("grdPozycje", 5, packedQuantity), "1,000") << "one unit is one step";
  editor.perform("scannerPacks");
  EXPECT_EQ(isOn(), false);
  scan(ean);
  EXPECT_EQ(editor.cellText("grdPozycje", 5, packedQuantity), "1,000");
}

TEST_F(DeskTest, ACodeIsScannedOutsideOfTheTablesTooOntoThePackageThere) {
  addPackage(editor, "Паллета 1", std::string(serials[0]));
  addPackage(editor, "Паллета 2", std::string(serials[1]));
  const auto scanKey = [](int code) {
    return Json{{"do", "scanKey"}, {"code", code}, {"package", 1}};
  };
  const auto scanThere = [&](std::string_view code) {
    for (const char digit : code) editor.act(scanKey(digit));
    editor.act(scanKey(enter));
  };
  const std::string ean = editor.cellText("grdPozycje", 5, 1);
  editor.cell("grdPozycje", 1, 1);
  editor.refused(scanKey(enter));
  editor.act(scanKey('4'));
  editor.refused(scanKey(f2));
  scanThere(ean);
  EXPECT_EQ(row("grdPozycje"), 5);
  editor.perform("scannerPacks");
  editor.cell("grdOpakowania", 2, packageDescription);
  scanThere(ean);
  EXPECT_EQ(row("grdOpakowania"), 1);
  EXPECT_THAT(std::string(editor.takeLast("line")["text"]), testing::StartsWith("Паллета 1 ← "));
  editor.cell("grdOpakowania", 2, packageDescription);
  scan(ean);
  EXPECT_EQ(row("grdOpakowania"), 2) << "among the tables it is the current one";
  press("btnDodajOpak");
  editor.refused(scanKey('4'));
  editor.close("DlgSzczegoly");
}

TEST_F(DeskTest, AScannersMarksAreCutOffBeforeANumberField) {
  constexpr std::string_view number = "DlgSzczegoly.txtSerialNumberN";
  const Json scanned = editor.get("typedInto");
  EXPECT_EQ(scanned["tables"], Json({"grdPozycje", "grdOpakowania"}));
  EXPECT_EQ(scanned["fields"], Json({number, "DlgDodaj.txtlEANProdWart", "DlgDodaj.cboxEANProd"}));
  const auto typed = [&](const Json& more) {
    Json line{{"do", "scan"}, {"on", number}};
    line.update(more);
    editor.act(line);
    return editor.takeLast("typed");
  };
  press("btnDodajOpak");
  EXPECT_EQ(typed({{"text", "("}, {"begins", true}}), Json()) << "it may be a mark's";
  for (const char* character : {"0", "0", ")"}) typed({{"text", character}});
  EXPECT_EQ(editor.text(number), "");
  EXPECT_EQ(typed({{"text", "3"}}), Json({{"event", "typed"}, {"on", number}, {"text", "3"}}));
  typed({{"text", "(00)395200010000000011"}, {"isWhole", true}});
  EXPECT_EQ(editor.text(number), "395200010000000011");
  editor.type(number, "00395200010000000028");
  EXPECT_EQ(editor.text(number), "395200010000000028") << "what comes at once, too";
  typed({{"text", "]"}, {"begins", true}});
  editor.type("DlgSzczegoly.txtPackageDesc", "(00) Короб");
  EXPECT_EQ(editor.text(number), "]") << "no mark came of it";
  EXPECT_EQ(editor.text("DlgSzczegoly.txtPackageDesc"), "(00) Короб");
  editor.refused({{"do", "scan"}, {"on", "txtNrAwiza"}, {"text", "1"}});
  editor.close("DlgSzczegoly");
  editor.refused({{"do", "scan"}, {"on", number}, {"text", "1"}, {"begins", true}});
}

TEST_F(DeskTest, ListsWhatIsWrongAndLeadsThere) {
  editor.perform("showFaults");
  EXPECT_THAT(std::string(editor.get("FaultList")["caption"]), testing::StartsWith("Что не так: "));
  const Json cells = editor.get("FaultList.grdFaults")["cells"];
  int line = 0;
  for (int at = 1; at < static_cast<int>(cells.size()); ++at) {
    if (cells[static_cast<std::size_t>(at)][0].get<std::string>().starts_with("Строка 11 ") &&
        line == 0)
      line = at;
  }
  ASSERT_GT(line, 0);
  editor.cell("FaultList.grdFaults", line, 0);
  editor.key("FaultList.grdFaults", enter);
  EXPECT_EQ(editor.get("focus"), "grdPozycje");
  EXPECT_EQ(row("grdPozycje"), 11);
}

TEST_F(DeskTest, KeysInATableAreThoseOfItsCommands) {
  editor.cell("grdPozycje", 3, 1);
  editor.key("grdPozycje", f2);
  EXPECT_EQ(editor.takeLast("modal")["form"], "DlgDodaj");
  editor.close("DlgDodaj");
  addPackage(editor, "Паллета 1", std::string(serials[0]));
  editor.cell("grdOpakowania", 1, packageDescription);
  editor.key("grdOpakowania", enter);
  EXPECT_EQ(editor.takeLast("modal")["form"], "DlgSzczegoly");
  editor.close("DlgSzczegoly");
  const std::string third = editor.cellText("grdPozycje", 3, 2);
  editor.cell("grdPozycje", 2, 1);
  editor.key("grdPozycje", keyDelete);
  EXPECT_EQ(editor.cellText("grdPozycje", 2, 2), third);
}

TEST_F(DeskTest, KeysLeadToTheEndsOfATable) {
  editor.act({{"do", "key"}, {"on", "grdPozycje"}, {"code", keyEnd}, {"control", true}});
  EXPECT_EQ(row("grdPozycje"), 25);
  editor.act({{"do", "key"}, {"on", "grdPozycje"}, {"code", keyHome}, {"control", true}});
  EXPECT_EQ(row("grdPozycje"), 1);
}

TEST_F(DeskTest, KeysAndCharactersLeadToACountry) {
  const std::string countries = "DlgIsoCodes.grdISO";
  editor.click("Image2");
  const int count = static_cast<int>(editor.get(countries)["cells"].size());
  editor.key(countries, keyEnd);
  EXPECT_EQ(row(countries), count - 1);
  editor.key(countries, keyHome);
  EXPECT_EQ(row(countries), 1);
  const std::string last = editor.cellText(countries, count - 1, 0);
  editor.act({{"do", "key"}, {"on", countries}, {"code", 0}, {"text", last.substr(0, 2)}});
  EXPECT_EQ(editor.cellText(countries, row(countries), 0).substr(0, 2), last.substr(0, 2));
  EXPECT_GT(row(countries), 1);
  const int found = row(countries);
  editor.act({{"do", "key"}, {"on", countries}, {"code", 0}, {"text", "#"}});
  EXPECT_EQ(row(countries), found) << "no country begins so";
  editor.close("DlgIsoCodes");
}

TEST_F(DeskTest, DoubleClickOnAPackageOpensIt) {
  addPackage(editor, "Паллета 1", std::string(serials[0]));
  editor.cell("grdOpakowania", 1, packageDescription);
  editor.takeEvents();
  editor.doubleClick("grdOpakowania");
  EXPECT_EQ(editor.takeLast("modal")["form"], "DlgSzczegoly");
  editor.close("DlgSzczegoly");
}

TEST_F(DeskTest, AsksBeforeTheDocumentIsLost) {
  for (const Json& way : std::vector<Json>{{{"do", "command"}, {"on", "btnWczytaj"}},
                                           {{"do", "click"}, {"on", "btnWczytaj"}},
                                           {{"do", "command"}, {"task", "startAgain"}}}) {
    editor.act(way);
    const Json question = editor.takeLast("question");
    EXPECT_THAT(std::string(question["text"]), HasSubstr("не отправлен и не сохранён")) << way;
    editor.answer("cancel");
    EXPECT_THAT(editor.takeEvents(), IsEmpty()) << way;
  }
  editor.perform("startAgain");
  editor.answer("letGo");
  EXPECT_EQ(editor.takeLast("startAgain"), Json({{"event", "startAgain"}}));
}

TEST(Desk, AClientThatDoesntFollowItIsAskedNothing) {
  const Supplier supplier;
  DemoService service{supplier.place.posted()};
  Conversation editor = supplier.startOnLine(service);
  editor.show();
  editor.takeEvents();
  editor.click("btnWczytaj");
  const std::vector<Json> events = editor.takeEvents();
  ASSERT_FALSE(events.empty());
  EXPECT_EQ(events[0]["form"], "DlgWczytajZapisz");
  editor.close("DlgWczytajZapisz");
}

TEST_F(DeskTest, SeveralPackagesEndAtTheFirstThatTheControlRefuses) {
  editor.perform("addPackages");
  editor.type("PackagesDialog.txtCount", "3");
  editor.type("PackagesDialog.txtDescription", "Короб #");
  editor.type("PackagesDialog.txtPlace", deliveryPlace);
  editor.takeEvents();
  editor.click("PackagesDialog.btnAdd");
  // Nobody has given them numbers.
  EXPECT_THAT(editor.openBox(), HasSubstr("Добавлено упаковок: 0 из 3.\r\n«Короб 1»: "));
  editor.answerAll();
  std::vector<std::string> seen;
  for (const Json& event : editor.takeEvents()) {
    seen.push_back(event["event"] == "works" ? std::string(event["what"])
                                             : std::string(event["event"]));
  }
  EXPECT_THAT(seen, Contains("Добавлено упаковок: 0 из 3"));
  EXPECT_THAT(seen, Not(Contains("modal"))) << "nobody acts on these dialogs";
}

TEST_F(DeskTest, TellsWhatLiesWhereAndPacksTheRestOfLines) {
  editor.perform("showPacking");
  EXPECT_EQ(editor.takeLast("showPacking"), Json({{"event", "showPacking"}}));
  addPackage(editor, "Паллета 1", std::string(serials[0]));
  addPackage(editor, "Короб", std::string(serials[1]), 0);
  const std::string quantity = editor.get("packing")["lines"][1]["packed"];
  EXPECT_THAT(quantity, testing::StartsWith("0 из "));
  editor.takeEvents();
  editor.act({{"do", "packRest"}, {"lines", {1, 2}}, {"package", 2}});
  EXPECT_EQ(editor.takeLast("modal"), Json()) << "nobody acts on these dialogs";
  const Json packing = editor.get("packing");
  EXPECT_EQ(packing["summary"], "упаковано 2 из 25 строк");
  EXPECT_EQ(packing["lines"][1]["isWhole"], true);
  EXPECT_EQ(packing["lines"][2]["isWhole"], false);
  ASSERT_EQ(packing["places"].size(), 4U);
  EXPECT_EQ(packing["places"][1]["level"], 2);
  EXPECT_EQ(packing["places"][3]["line"], 2);
  editor.act({{"do", "packRest"}, {"lines", {1}}, {"package", 1}});
  EXPECT_EQ(editor.openBox(), "VIRD|exclamation|Раскладывать нечего.");
  editor.answerAll();
  for (const Json& rows : {Json{{"lines", {0}}, {"package", 1}},
                           {{"lines", {26}}, {"package", 1}},
                           {{"lines", {1}}, {"package", 3}},
                           {{"lines", 1}, {"package", 1}}}) {
    Json line{{"do", "packRest"}};
    line.update(rows);
    EXPECT_EQ(editor.say(line)["ok"], false) << line;
  }
}

TEST_F(DeskTest, DistributesTheLinesOverThePackages) {
  addPackage(editor, "Паллета 1", std::string(serials[0]));
  editor.perform("distribute");
  editor.click("DistributionDialog.btnDo");
  editor.answerAll();
  EXPECT_EQ(editor.cellText("grdPozycje", 2, packedQuantity), "96,000");
  editor.perform("takeBack");
  EXPECT_EQ(editor.cellText("grdPozycje", 2, packedQuantity), "0,000");
}

TEST_F(DeskTest, SaysWhatIsMarkedAsSpreadsheetsTakeIt) {
  editor.act({{"do", "select"},
              {"on", "grdPozycje"},
              {"row", 1},
              {"col", 1},
              {"rowSel", 2},
              {"colSel", 2}});
  const std::string text = editor.get("markedText");
  EXPECT_EQ(text, editor.cellText("grdPozycje", 1, 1) + "\t" + editor.cellText("grdPozycje", 1, 2) +
                      "\n" + editor.cellText("grdPozycje", 2, 1) + "\t" +
                      editor.cellText("grdPozycje", 2, 2) + "\n");
}

TEST_F(DeskTest, NoKeyReachesATableBelowADialog) {
  editor.cell("grdPozycje", 1, 1);
  editor.perform("findLine");
  editor.refused({{"do", "key"}, {"on", "grdPozycje"}, {"code", '4'}});
  editor.refused({{"do", "key"}, {"on", "grdPozycje"}, {"code", f2}});
  editor.close("FindDialog");
}

TEST_F(DeskTest, OpensADocumentThatIsBrought) {
  const std::string sample = (projectFolder() / "samples/despatch-advice.xml").string();
  const Json brought{{"do", "bring"}, {"name", "a.xml"}, {"from", sample}};
  editor.refused(brought);
  press("btnWczytaj");
  editor.answer("letGo");
  EXPECT_EQ(editor.takeLast("mayBring")["may"], true);
  editor.act(brought);
  editor.answerAll();
  EXPECT_EQ(editor.text("txtNrAwiza"),
            ReadDocument(readFile(sample)).text("//DespatchAdviceNumber"));
  EXPECT_EQ(readFile(supplier.place.folder() / "a.xml"), readFile(sample));
}

TEST_F(DeskTest, BringsNothingWhereADocumentIsSaved) {
  editor.type("txtNrAwiza", "ТН-6");
  addPackage(editor, "Паллета 1", std::string(serials[0]));
  press("btnZapisz");
  editor.answer("Yes");
  EXPECT_EQ(editor.takeLast("mayBring")["may"], false);
  const std::string sample = (projectFolder() / "samples/despatch-advice.xml").string();
  editor.refused({{"do", "bring"}, {"name", "a.xml"}, {"from", sample}});
  EXPECT_FALSE(std::filesystem::exists(supplier.place.folder() / "a.xml"));
}

TEST_F(DeskTest, TellsTheGuidesChapterOfTheFormThatOneIsIn) {
  EXPECT_EQ(editor.get("guideChapter"), "");
  press("btnDodajOpak");
  EXPECT_EQ(editor.get("guideChapter"), "Упаковки");
  editor.click("DlgSzczegoly.btnDodaj");
  EXPECT_EQ(editor.get("guideChapter"), "Упаковки") << "in a box too";
  editor.answer("OK");
  editor.close("DlgSzczegoly");
}

TEST_F(DeskTest, NothingIsThereToStop) { editor.refused({{"do", "stop"}}); }

}  // namespace
}  // namespace awizo::test
