// The road of a document by the keyboard alone, through real widgets, against the demo service;
// what is posted is what awizo-headless posts, byte for byte.

#include "desktop_program/program_test.h"
#include "support/programs/conversation.h"

namespace awizo::test {
namespace {

constexpr const char* number = "ТН/1";
constexpr const char* serial = "035200010000000016";
constexpr const char* deliveryPlace = "9520002000019";

class KeyboardRoadTest : public ProgramTest {
 protected:
  void fillHeader() {
    type(number);
    tabTo(form().txtCodeByBuyer);
    press(Qt::Key_A, Qt::ControlModifier);
    type("417");
  }

  void addPackage() {
    tabTo(form().grdOpakowania);
    then([this] {
      DlgSzczegoly& dialog = control().dlgSzczegoly;
      tabTo(dialog.txtPackageDesc);
      press(Qt::Key_A, Qt::ControlModifier);
      type("Паллета 1");
      tabTo(dialog.txtSerialNumberN);
      type(serial);
      tabTo(dialog.cboxILNLokalizacji);
      type(deliveryPlace);
      press(Qt::Key_Return);
      EXPECT_FALSE(dialog.shown()) << "the package was refused";
    });
    press(Qt::Key_Insert);
  }

  void packFirstLine() {
    tabTo(form().grdPozycje);
    for (int step = form().grdPozycje.row(); step > 1; --step) press(Qt::Key_Up);
    then([this] {
      DlgDodaj& dialog = control().dlgDodaj;
      then([this] {
        DlgdodajPule& packages = control().dlgdodajPule;
        tabTo(packages.cboxPackages);
        press(Qt::Key_Down);
        EXPECT_EQ(packages.cboxPackages.index(), 0);
        press(Qt::Key_Return);
        EXPECT_FALSE(packages.shown()) << "the assignment was refused";
      });
      tabTo(dialog.Command1);
      press(Qt::Key_Space);
      tabTo(dialog.btnDodaj);
      press(Qt::Key_Return);
      EXPECT_FALSE(dialog.shown()) << "the line was refused";
    });
    press(Qt::Key_F2);
  }

  std::string headlessDocument() const {
    const Workplace other;
    const DemoService service(other.posted());
    Conversation editor({"--offline-path", other.folder().string(), "--locale", "ru_RU", "--now",
                         "2026-11-21T10:15:00", "--property", "PartnerName=Demo", "--property",
                         "PartnerILN=9520002000019", "--property", "PartnerURL=partner",
                         "--page-url", service.pageUrl(), "--cookie", "session=1; user=anna"});
    editor.show();
    editor.type("txtNrAwiza", number);
    editor.type("txtCodeByBuyer", "417");
    editor.click("btnDodajOpak");
    editor.type("DlgSzczegoly.txtPackageDesc", "Паллета 1");
    editor.type("DlgSzczegoly.txtSerialNumberN", serial);
    editor.type("DlgSzczegoly.cboxILNLokalizacji", deliveryPlace);
    editor.click("DlgSzczegoly.btnDodaj");
    editor.cell("grdPozycje", 1, 1);
    editor.click("btnEdytuj");
    editor.click("DlgDodaj.Command1");
    editor.choose("DlgdodajPule.cboxPackages", 0);
    editor.click("DlgdodajPule.btnDodaj");
    editor.click("DlgDodaj.btnDodaj");
    editor.click("btnPrzeslij");
    editor.answerAll();
    EXPECT_EQ(editor.finish(), 0);
    const std::vector<std::string> posted = service.posted();
    return posted.empty() ? "(nothing posted)" : posted.front();
  }
};

TEST_F(KeyboardRoadTest, PostsTheDocumentThatTheHeadlessHostPosts) {
  const DemoService service(place.posted());
  agreeTo(service);
  open(onLineOptions(service));
  fillHeader();
  addPackage();
  packFirstLine();
  const std::vector<std::string> boxes = answerWithEnter([] { press(Qt::Key_F9); });
  ASSERT_EQ(boxes.size(), 2u);
  EXPECT_EQ(boxes[1], "information|VIRD|Документ отправлен.|ОК");
  const std::vector<std::string> posted = service.posted();
  ASSERT_EQ(posted.size(), 1u);
  EXPECT_EQ(posted.front(), headlessDocument());

  window().close();
  EXPECT_TRUE(isClosed()) << "what was sent isn't asked about";
}

}  // namespace
}  // namespace awizo::test
