#include <QApplication>
#include <QHeaderView>
#include <QScrollBar>
#include <QTableView>

#include "control_on_desktop.h"
#include "hosts/desktop/faces/table_face.h"
#include "tables/columns/columns.h"

namespace awizo::test {
namespace {

class InTableEditorOnDesktop : public testing::Test, public ControlOnDesktop {
 protected:
  Table& table = form.grdPozycje;
  TextField& editorField = form.txtEdycja;

  InTableEditorOnDesktop() { fillDocument(); }

  QTableView* view() { return static_cast<desktop::TableFace&>(face(table)).view(); }
  QRect cellRect(int row, int column) {
    return view()->visualRect(view()->model()->index(row - 1, column));
  }
  void clickCell(int row, int column) { click(view()->viewport(), cellRect(row, column).center()); }
  void openEditor(int row) {
    doubleClick(view()->viewport(), cellRect(row, GRD_POZ_QTY_DESPATCHED).center());
    ASSERT_TRUE(widget(editorField)->isVisible());
  }
  QRect editorRect() { return widget(editorField)->geometry(); }
  std::string cell(int row) { return table.cell(row, GRD_POZ_QTY_DESPATCHED); }
};

TEST_F(InTableEditorOnDesktop, LiesOverItsCellWithTheFocusAndTheCellsText) {
  EXPECT_FALSE(widget(editorField)->isVisible());
  openEditor(2);
  EXPECT_EQ(editorRect(), cellRect(2, GRD_POZ_QTY_DESPATCHED));
  EXPECT_TRUE(keysGoTo(editorField));
  EXPECT_EQ(shownText(face(editorField)), "10,000");
}

TEST_F(InTableEditorOnDesktop, OpensByEnterOnTheColumn) {
  clickCell(1, GRD_POZ_QTY_DESPATCHED);
  press(Qt::Key_Return);
  EXPECT_TRUE(widget(editorField)->isVisible());
  EXPECT_TRUE(keysGoTo(editorField));
}

TEST_F(InTableEditorOnDesktop, EnterCommitsAndMovesDown) {
  openEditor(1);
  press(Qt::Key_A, Qt::ControlModifier);
  type("3");
  press(Qt::Key_Return);
  EXPECT_EQ(cell(1), "3,000");
  EXPECT_FALSE(widget(editorField)->isVisible());
  EXPECT_EQ(table.row(), 2);
  EXPECT_TRUE(keysGoTo(table));
}

TEST_F(InTableEditorOnDesktop, UpAndDownCommitAndMove) {
  openEditor(1);
  press(Qt::Key_A, Qt::ControlModifier);
  type("2");
  press(Qt::Key_Down);
  EXPECT_EQ(cell(1), "2,000");
  EXPECT_EQ(table.row(), 2);
  press(Qt::Key_Return);
  press(Qt::Key_A, Qt::ControlModifier);
  type("99");
  press(Qt::Key_Up);
  EXPECT_EQ(cell(2), "12,000") << "no more than was ordered";
  EXPECT_EQ(table.row(), 1);
}

TEST_F(InTableEditorOnDesktop, EscapeLeavesTheCellAsItWas) {
  openEditor(1);
  press(Qt::Key_A, Qt::ControlModifier);
  type("1");
  press(Qt::Key_Escape);
  EXPECT_EQ(cell(1), "5,000");
  EXPECT_FALSE(widget(editorField)->isVisible());
  EXPECT_TRUE(keysGoTo(table));
}

TEST_F(InTableEditorOnDesktop, ATextThatIsNoNumberWarnsAndKeepsTheCell) {
  openEditor(1);
  press(Qt::Key_A, Qt::ControlModifier);
  type("abc");
  std::string box;
  answerNext("ОК", &box);
  press(Qt::Key_Return);
  EXPECT_EQ(box, "exclamation|VIRD|Неправильная нумерическая величина.|ОК");
  EXPECT_EQ(cell(1), "5,000");
  EXPECT_FALSE(widget(editorField)->isVisible());
}

TEST_F(InTableEditorOnDesktop, AClickOnAnotherCellCommits) {
  openEditor(1);
  press(Qt::Key_A, Qt::ControlModifier);
  type("4");
  clickCell(2, GRD_POZ_NAME);
  EXPECT_EQ(cell(1), "4,000");
  EXPECT_FALSE(widget(editorField)->isVisible());
  EXPECT_EQ(table.row(), 2);
  EXPECT_EQ(table.column(), GRD_POZ_NAME);
}

TEST_F(InTableEditorOnDesktop, FollowsTheColumnsAndTheScrolling) {
  std::vector<std::vector<std::string>> many;
  for (int row = 1; row <= 100; ++row) {
    many.push_back({std::to_string(row), "1", "Товар", "9,000", "9,000"});
  }
  TestEditor::fill(table, many);
  session.LineCount = 100;
  settle();
  openEditor(3);
  view()->horizontalHeader()->resizeSection(GRD_POZ_NAME, 90);
  EXPECT_EQ(editorRect(), cellRect(3, GRD_POZ_QTY_DESPATCHED));
  view()->verticalScrollBar()->setValue(2);
  EXPECT_EQ(editorRect(), cellRect(3, GRD_POZ_QTY_DESPATCHED));
  EXPECT_TRUE(widget(editorField)->isVisible());
}

TEST_F(InTableEditorOnDesktop, ADoubleClickOnTheNameTogglesTheRowsHeight) {
  const int normal = view()->rowHeight(0);
  doubleClick(view()->viewport(), cellRect(1, GRD_POZ_NAME).center());
  EXPECT_EQ(view()->rowHeight(0), 2 * normal);
  doubleClick(view()->viewport(), cellRect(1, GRD_POZ_NAME).center());
  EXPECT_EQ(view()->rowHeight(0), normal);
}

TEST_F(InTableEditorOnDesktop, ADoubleClickOnTheEANOpensTheLineDialog) {
  bool opened = false;
  then([&] {
    // Between the two clicks nothing opens; the dialog is there once the second has come.
    then([&] {
      opened = control.dlgDodaj.shown();
      press(Qt::Key_Escape);
    });
  });
  settle();
  doubleClick(view()->viewport(), cellRect(1, GRD_POZ_EAN).center());
  EXPECT_TRUE(opened);
}

}  // namespace
}  // namespace awizo::test
