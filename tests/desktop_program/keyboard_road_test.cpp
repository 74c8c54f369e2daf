// The road of a document by the keyboard alone, through real widgets, against the demo service;
// what is posted is what awizo-headless posts, byte for byte.

#include "desktop_program/program_test.h"
#include "hosts/desktop/faces/text.h"
#include "support/supplier/supplier.h"

namespace awizo::test {
namespace {

using desktop::fromText;

constexpr const char* number = "ТН/1";
constexpr const char* packageName = "Паллета 1";

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
      type(packageName);
      tabTo(dialog.txtSerialNumberN);
      type(fromText(serials[0]));
      tabTo(dialog.cboxILNLokalizacji);
      type(fromText(deliveryPlace));
      // The first takes the proposal under the field, the second accepts.
      press(Qt::Key_Return);
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

  static std::string headlessDocument() {
    const Supplier other;
    const DemoService service(other.place.posted());
    Conversation editor = other.startOnLine(service);
    editor.show();
    completeHeader(editor, number);
    test::addPackage(editor, packageName, serials[0]);
    packLine(editor, 1, packageName);
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
