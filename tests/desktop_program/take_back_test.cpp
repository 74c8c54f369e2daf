#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>

#include "desk/document_watch.h"
#include "desktop_program/program_test.h"
#include "hosts/desktop/faces/table_face.h"
#include "support/documents.h"
#include "tables/columns/columns.h"

namespace awizo::test {
namespace {

class TakeBackTest : public ProgramTest {
 protected:
  void openLines() {
    open(offLineOptions());
    putLines(control().editor, 5);
    letLayoutsSettle();
  }
  /// The entry of the menu that begins with these words; fails the test when there is none.
  QAction* entry(const std::string& words) {
    for (const QAction* menu : window().menuBar()->actions()) {
      for (QAction* action : menu->menu()->actions()) {
        if (action->text().toStdString().starts_with(words)) return action;
      }
    }
    ADD_FAILURE() << "no entry " << words;
    return nullptr;
  }
  std::string shownCell(int row, int column) {
    const QTableView* view = widget().faces().table(form().grdPozycje).view();
    return view->model()->index(row - 1, column).data().toString().toStdString();
  }
};

TEST_F(TakeBackTest, CtrlZPutsARemovedRowBackAndCtrlYRemovesItAgain) {
  openLines();
  form().grdPozycje.setCell(2, GRD_POZ_EAN, "4607000000116");
  tabTo(form().grdPozycje);
  press(Qt::Key_Down);
  ASSERT_EQ(form().grdPozycje.row(), 2);
  press(Qt::Key_Delete);
  ASSERT_EQ(form().grdPozycje.rows(), 5);
  EXPECT_EQ(entry("&Отменить")->text().toStdString(), "&Отменить: удаление строки 2");
  press(Qt::Key_Z, Qt::ControlModifier);
  settle();
  EXPECT_EQ(form().grdPozycje.rows(), 6);
  EXPECT_EQ(shownCell(2, GRD_POZ_EAN), "4607000000116");
  EXPECT_EQ(widget().faces().focusedFace(), &face(form().grdPozycje));
  EXPECT_FALSE(entry("&Отменить")->isEnabled());
  EXPECT_EQ(entry("&Повторить")->text().toStdString(), "&Повторить: удаление строки 2");
  EXPECT_EQ(widget().watch().status(), "Отменено: удаление строки 2");
  press(Qt::Key_Y, Qt::ControlModifier);
  EXPECT_EQ(form().grdPozycje.rows(), 5);
  EXPECT_FALSE(entry("&Повторить")->isEnabled());
}

TEST_F(TakeBackTest, InAFieldTheKeysAreItsOwnAndTheMenuTakesTheWholeFieldBack) {
  openLines();
  typeOver(face(form().txtNrAwiza), "ТН-6");
  press(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_NE(form().txtNrAwiza.text(), "ТН-6");
  press(Qt::Key_Y, Qt::ControlModifier);
  EXPECT_EQ(form().txtNrAwiza.text(), "ТН-6");
  EXPECT_TRUE(entry("&Отменить")->text().contains("Номер документа"));
  entry("&Отменить")->trigger();
  EXPECT_EQ(form().txtNrAwiza.text(), "");
  EXPECT_EQ(static_cast<QLineEdit*>(face(form().txtNrAwiza).widget())->text(), "");
  entry("&Повторить")->trigger();
  EXPECT_EQ(form().txtNrAwiza.text(), "ТН-6");
  tabTo(form().grdPozycje);
  press(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(form().txtNrAwiza.text(), "");
}

TEST_F(TakeBackTest, ANewSessionHasNothingToTakeBack) {
  openLines();
  EXPECT_FALSE(entry("&Отменить")->isEnabled());
  EXPECT_EQ(entry("&Отменить")->text().toStdString(), "&Отменить");
}

}  // namespace
}  // namespace awizo::test
