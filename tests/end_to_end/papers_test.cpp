// Papers of the document in the window and of a saved one, as a client gets them that prints
// itself.

#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "platform/text.h"
#include "support/files/files.h"
#include "support/supplier/supplier.h"

namespace awizo::test {
namespace {

using testing::HasSubstr;
using testing::SizeIs;

struct PapersTest : testing::Test {
  PapersTest() {
    editor.act({{"do", "followDesk"}});
    editor.show();
    editor.type("txtNrAwiza", "ТН-6");
    addPackage(editor, "Паллета 1", std::string(serials[0]));
    addPackage(editor, "Короб", std::string(serials[1]));
    editor.takeEvents();
  }

  Supplier supplier;
  DemoService service{supplier.place.posted()};
  Conversation editor = supplier.startOnLine(service);
};

TEST_F(PapersTest, AreShownSheetBySheetAndPrinted) {
  editor.perform("showLabels");
  EXPECT_EQ(editor.get("PapersDialog")["caption"], "Этикетки ТН-6");
  EXPECT_EQ(editor.get("PapersDialog.btnPdf")["visible"], false);
  EXPECT_THAT(std::string(editor.takeLast("sheet")["svg"]),
              HasSubstr(">" + std::string(serials[0]) + "</text>"));
  editor.choose("PapersDialog.cboCopies", 1);
  editor.click("PapersDialog.btnNext");
  const std::string second = editor.takeLast("sheet")["svg"];
  EXPECT_THAT(second, HasSubstr(">" + std::string(serials[1]) + "</text>"));
  editor.click("PapersDialog.btnPrint");
  const Json print = editor.takeLast("print");
  EXPECT_EQ(print["title"], "Этикетки ТН-6");
  ASSERT_THAT(print["sheets"], SizeIs(2));
  EXPECT_EQ(print["sheets"][1], second);
  editor.act({{"do", "printed"}});
  EXPECT_THAT(std::string(editor.takeLast("question")["text"]), HasSubstr("Этикетки напечатаны?"));
  editor.answer("notPrinted");
  editor.choose("PapersDialog.cboPackages", 2);
  EXPECT_NE(editor.takeLast("sheet")["svg"], "");
  editor.click("PapersDialog.btnPrint");
  editor.act({{"do", "printed"}});
  editor.answer("printed");
  editor.choose("PapersDialog.cboPackages", 2);
  EXPECT_EQ(editor.takeLast("sheet")["svg"], "") << "all labels have been printed";
  editor.choose("PapersDialog.cboPaper", 1);
  editor.click("PapersDialog.btnPrint");
  editor.takeEvents();
  editor.act({{"do", "printed"}});
  EXPECT_EQ(editor.takeLast("question"), Json()) << "a packing list isn't noted";
  editor.close("PapersDialog");
}

TEST_F(PapersTest, ShowThePackingListAndHandItOutAsATable) {
  editor.perform("showPackingList");
  EXPECT_THAT(std::string(editor.takeLast("sheet")["svg"]), HasSubstr("Без упаковки"));
  editor.close("PapersDialog");
  editor.perform("showPackingCsv");
  const Json table = editor.takeLast("file");
  EXPECT_EQ(table["name"], "Упаковочный_лист_ТН-6.csv");
  EXPECT_THAT(std::string(table["text"]), HasSubstr(std::string(serials[1])));
}

TEST_F(PapersTest, OfASavedDocument) {
  editor.perform("showPapersOfFile");
  EXPECT_EQ(editor.takeLast("chooseDocument"), Json({{"event", "chooseDocument"}}));
  const std::string sample =
      "c:" + replaceAll((projectFolder() / "samples/despatch-advice.xml").string(), "/", "\\");
  editor.act({{"do", "showPapersOf"}, {"path", sample}});
  EXPECT_THAT(std::string(editor.takeLast("sheet")["svg"]),
              HasSubstr(">395200010000000011</text>"));
  editor.close("PapersDialog");
  editor.act({{"do", "showPapersOf"}, {"path", sample + ".no"}});
  EXPECT_THAT(editor.openBox(), HasSubstr("despatch-advice.xml.no: "));
  editor.answerAll();
  editor.act({{"do", "showPapersOf"}, {"path", sample + ".no"}, {"name", "моё.xml"}});
  EXPECT_THAT(editor.openBox(), HasSubstr("|моё.xml: "));
  editor.answerAll();
}

}  // namespace
}  // namespace awizo::test
