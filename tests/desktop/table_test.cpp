#include "platform/forms/table.h"

#include <QHeaderView>
#include <QMouseEvent>
#include <QScrollBar>
#include <QTableView>

#include "form_window.h"
#include "hosts/desktop/faces/table_face.h"
#include "platform/forms/keys.h"
#include "platform/forms/text_field.h"

namespace awizo::test {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Not;

class TableOnDesktop : public FormWindow {
 protected:
  TextField field{form, "field"};
  Table table{form, "table", 4, 51};

  TableOnDesktop() {
    for (int row = 0; row < table.rows(); ++row) {
      for (int column = 0; column < 4; ++column) {
        table.setCell(row, column, std::to_string(row) + "/" + std::to_string(column));
      }
    }
    table.setColumnWidth(2, 0);
    noteFocus(field);
    table.onGotFocus = note("GotFocus");
    table.onLeaveCell = note("LeaveCell");
    table.onSelectionChange = note("SelChange");
    table.onClick = note("Click");
    table.onDoubleClick = note("DblClick");
    table.onMouseDown = note("MouseDown");
    table.onMouseUp = note("MouseUp");
    table.onKeyDown = [this](std::int16_t code, bool) {
      events.push_back("KeyDown " + std::to_string(code));
    };
    table.onScroll = note("Scroll");
    show();
    takeEvents();
  }

  desktop::TableFace& tableFace() { return static_cast<desktop::TableFace&>(faceOf(table)); }
  QTableView* view() { return tableFace().view(); }
  QPoint at(int row, int column) {
    return view()->visualRect(view()->model()->index(row - 1, column)).center();
  }
  std::string shown(int row, int column) {
    return desktop::toText(view()->model()->index(row - 1, column).data().toString());
  }
  void clickCell(int row, int column) { click(view()->viewport(), at(row, column)); }
  QImage picture() { return view()->viewport()->grab().toImage(); }
  /// The background of a cell: what is painted beside its text.
  QColor colourAt(int row, int column) {
    const QRect cell = view()->visualRect(view()->model()->index(row - 1, column));
    return picture().pixelColor(cell.right() - 3, cell.top() + 2);
  }
  QColor currentColour(const QColor& background) {
    return desktop::currentRowColour(view()->palette(), background);
  }
  bool isSeen(int row) {
    return view()->viewport()->rect().contains(
        view()->visualRect(view()->model()->index(row - 1, 0)));
  }
  std::pair<int, int> shownCurrent() {
    return {view()->currentIndex().row() + 1, view()->currentIndex().column()};
  }
};

TEST_F(TableOnDesktop, ShowsHeadingsAndCells) {
  EXPECT_EQ(view()->model()->headerData(1, Qt::Horizontal).toString(), "0/1");
  EXPECT_EQ(view()->model()->rowCount(), 50);
  EXPECT_EQ(shown(1, 0), "1/0");
  table.setCell(1, 0, "new");
  EXPECT_EQ(shown(1, 0), "new");
}

TEST_F(TableOnDesktop, HidesColumnsOfNoWidth) {
  EXPECT_TRUE(view()->isColumnHidden(2));
  EXPECT_FALSE(view()->isColumnHidden(1));
  table.setColumnWidth(2, 960);
  EXPECT_FALSE(view()->isColumnHidden(2));
}

TEST_F(TableOnDesktop, TheWholeCurrentRowIsMarkedThoughItsCellIsHidden) {
  table.setRow(3);
  table.setColumn(2);
  settle();
  EXPECT_EQ(colourAt(3, 0), currentColour(Qt::white));
  EXPECT_EQ(colourAt(3, 3), currentColour(Qt::white));
  EXPECT_EQ(colourAt(4, 3), QColor(Qt::white));
  const QPoint edge(1, at(3, 0).y());
  EXPECT_EQ(picture().pixelColor(edge), view()->palette().color(QPalette::Highlight));
  table.setRow(4);
  settle();
  EXPECT_EQ(colourAt(3, 3), QColor(Qt::white));
  EXPECT_EQ(colourAt(4, 3), currentColour(Qt::white));
}

TEST_F(TableOnDesktop, AMarkedCellOfADisabledTableIsNoDarkBlock) {
  table.setRow(3);
  table.setColumn(1);
  table.setEnabled(false);
  settle();
  EXPECT_GT(colourAt(3, 1).lightness(), 200);
  EXPECT_NE(colourAt(3, 1), colourAt(4, 1));
}

TEST_F(TableOnDesktop, ThePinkOfTheCurrentRowIsSeenThroughTheMark) {
  table.setBackground(3, 3, pink);
  table.setRow(3);
  table.setColumn(2);
  settle();
  EXPECT_EQ(colourAt(3, 3), currentColour(QColor(255, 192, 192)));
  EXPECT_NE(colourAt(3, 3), colourAt(3, 0));
}

TEST_F(TableOnDesktop, ARowWithoutATextIsNoCurrentRow) {
  for (int column = 0; column < 4; ++column) table.setCell(3, column, "");
  table.setRow(3);
  settle();
  EXPECT_EQ(colourAt(3, 3), QColor(Qt::white));
}

TEST_F(TableOnDesktop, BringsTheCurrentRowIntoView) {
  table.setRow(40);
  ASSERT_FALSE(isSeen(40));
  tableFace().bringRowIntoView();
  EXPECT_TRUE(isSeen(40));
  table.setRow(1);
  ASSERT_FALSE(isSeen(1));
  tableFace().bringRowIntoView();
  EXPECT_TRUE(isSeen(1));
}

TEST_F(TableOnDesktop, LeavesARowThatIsSeenWhereItIs) {
  table.setRow(2);
  tableFace().bringRowIntoView();
  EXPECT_EQ(table.topRow(), 1);
  EXPECT_THAT(takeEvents(), Not(Contains("Scroll")));
}

TEST_F(TableOnDesktop, WhatARowHasToSayStandsInItsTipsAndIsReadAloud) {
  tableFace().describeRows([](int row) { return row == 3 ? "цена не число" : ""; });
  const QModelIndex cell = view()->model()->index(2, 1);
  EXPECT_EQ(cell.data(Qt::ToolTipRole).toString(), "3/1\nцена не число");
  EXPECT_EQ(cell.data(Qt::AccessibleDescriptionRole).toString(), "цена не число");
  EXPECT_EQ(view()->model()->index(3, 1).data(Qt::ToolTipRole).toString(), "4/1");
}

TEST_F(TableOnDesktop, AClickComesAfterTheFocus) {
  clickCell(3, 1);
  EXPECT_THAT(events, ElementsAre("field.Validate", "field.LostFocus", "GotFocus", "MouseDown",
                                  "LeaveCell", "SelChange", "MouseUp", "Click"));
  EXPECT_EQ(table.row(), 3);
  EXPECT_EQ(table.column(), 1);
  EXPECT_EQ(shownCurrent(), std::pair(3, 1));
  EXPECT_TRUE(focusIsAt(table));
}

TEST_F(TableOnDesktop, ADoubleClickComesAfterTheClick) {
  clickCell(3, 1);
  takeEvents();
  doubleClick(view()->viewport(), at(3, 1));
  EXPECT_THAT(events, ElementsAre("MouseDown", "MouseUp", "Click", "MouseDown", "MouseUp", "Click",
                                  "DblClick"));
}

TEST_F(TableOnDesktop, ADragMarksARange) {
  QTest::mousePress(view()->viewport(), Qt::LeftButton, Qt::NoModifier, at(2, 0));
  QTest::mouseMove(view()->viewport(), at(4, 1));
  QTest::mouseRelease(view()->viewport(), Qt::LeftButton, Qt::NoModifier, at(4, 1));
  EXPECT_EQ(table.row(), 2);
  EXPECT_EQ(table.rowSel(), 4);
  EXPECT_EQ(table.columnSel(), 1);
  EXPECT_EQ(view()->selectionModel()->selectedIndexes().size(), 6);
  EXPECT_EQ(shownCurrent(), std::pair(2, 0));
}

TEST_F(TableOnDesktop, ClicksBesideTheCellsAndWithOtherButtonsDoNothing) {
  QTest::mouseClick(view()->viewport(), Qt::RightButton, Qt::NoModifier, at(5, 1));
  EXPECT_EQ(table.row(), 1);
  click(view()->viewport(), QPoint(view()->viewport()->width() - 2, 5));
  EXPECT_EQ(table.row(), 1);
}

TEST_F(TableOnDesktop, KeysMoveTheCurrentCellOnce) {
  clickCell(1, 0);
  takeEvents();
  press(Qt::Key_Down);
  EXPECT_THAT(takeEvents(), ElementsAre("KeyDown 40", "LeaveCell", "SelChange"));
  EXPECT_EQ(shownCurrent(), std::pair(2, 0));
  press(Qt::Key_End);
  EXPECT_EQ(shownCurrent(), std::pair(2, 3));
  press(Qt::Key_Left);
  EXPECT_EQ(shownCurrent(), std::pair(2, 1)) << "hidden columns are passed over";
  press(Qt::Key_Home);
  press(Qt::Key_Up);
  EXPECT_EQ(shownCurrent(), std::pair(1, 0));
}

TEST_F(TableOnDesktop, ControlWithHomeAndEndGoesToTheFirstAndLastRow) {
  clickCell(3, 1);
  press(Qt::Key_End, Qt::ControlModifier);
  EXPECT_EQ(shownCurrent(), std::pair(50, 1));
  press(Qt::Key_Home, Qt::ControlModifier);
  EXPECT_EQ(shownCurrent(), std::pair(1, 1));
}

TEST_F(TableOnDesktop, OtherKeysWithControlMoveNothing) {
  clickCell(3, 1);
  press(Qt::Key_Down, Qt::ControlModifier);
  press(Qt::Key_PageDown, Qt::ControlModifier);
  press(Qt::Key_A, Qt::ControlModifier);
  EXPECT_EQ(table.row(), 3);
  EXPECT_EQ(view()->selectionModel()->selectedIndexes().size(), 1);
}

TEST_F(TableOnDesktop, APageIsAsManyRowsAsAreShown) {
  clickCell(1, 0);
  const int whole = view()->viewport()->height() / view()->rowHeight(0);
  ASSERT_GT(whole, 2);
  press(Qt::Key_PageDown);
  EXPECT_EQ(table.row(), whole);
}

TEST_F(TableOnDesktop, TheCurrentRowStaysInSight) {
  clickCell(1, 0);
  for (int i = 0; i < 49; ++i) press(Qt::Key_Down);
  EXPECT_EQ(table.row(), 50);
  const QRect last = view()->visualRect(view()->model()->index(49, 0));
  EXPECT_TRUE(view()->viewport()->rect().contains(last)) << "the whole row is seen";
  EXPECT_EQ(view()->verticalScrollBar()->value() + 1, table.topRow());
}

TEST_F(TableOnDesktop, FollowsWhereCodePutsTheCellWithoutScrolling) {
  table.setRow(40);
  EXPECT_EQ(shownCurrent().first, 40);
  EXPECT_EQ(view()->verticalScrollBar()->value(), 0);
}

TEST_F(TableOnDesktop, ScrollingReachesTheModelOnce) {
  view()->verticalScrollBar()->setValue(5);
  EXPECT_EQ(table.topRow(), 6);
  EXPECT_THAT(events, ElementsAre("Scroll"));
  table.setTopRow(10);
  EXPECT_EQ(view()->verticalScrollBar()->value(), 9);
  EXPECT_THAT(events, ElementsAre("Scroll", "Scroll"));
}

TEST_F(TableOnDesktop, ShowsRowsThatComeAndGo) {
  table.addItem("last");
  table.removeItem(1);
  settle();
  EXPECT_EQ(view()->model()->rowCount(), 50);
  EXPECT_EQ(shown(1, 0), "2/0");
  EXPECT_EQ(shown(50, 0), "last");
  table.setRows(2);
  settle();
  EXPECT_EQ(view()->model()->rowCount(), 1);
}

TEST_F(TableOnDesktop, AKeyMeetsTheRowsAsTheyAre) {
  clickCell(1, 0);
  table.setRows(3);
  press(Qt::Key_PageDown);
  EXPECT_EQ(table.row(), 2);
  EXPECT_EQ(view()->model()->rowCount(), 2);
}

TEST_F(TableOnDesktop, KeepsWhatItShowsWhileRedrawingIsOff) {
  table.setRedraw(false);
  table.setRows(2);
  table.setCell(1, 0, "new");
  settle();
  EXPECT_EQ(view()->model()->rowCount(), 50);
  table.setRedraw(true);
  settle();
  EXPECT_EQ(view()->model()->rowCount(), 1);
  EXPECT_EQ(shown(1, 0), "new");
}

/// An error half-way leaves a table so, and its rows may go before it is painted again.
TEST_F(TableOnDesktop, ARowThatIsShownButGoneCantBeClicked) {
  table.setRedraw(false);
  table.setRows(2);
  settle();
  view()->viewport()->grab();
  clickCell(5, 1);
  EXPECT_THAT(takeEvents(), Not(Contains("Click")));
  EXPECT_EQ(table.row(), 1);
  clickCell(1, 1);
  EXPECT_EQ(table.column(), 1);
  view()->verticalScrollBar()->setValue(30);
  press(Qt::Key_PageDown);
  EXPECT_EQ(table.row(), 1);
  table.setRedraw(true);
  settle();
  EXPECT_EQ(view()->model()->rowCount(), 1);
  EXPECT_EQ(shownCurrent(), std::pair(1, 1));
}

TEST_F(TableOnDesktop, APinkCellHasADarkText) {
  table.setBackground(1, 1, pink);
  const QModelIndex cell = view()->model()->index(0, 1);
  EXPECT_EQ(cell.data(Qt::BackgroundRole).value<QColor>(), QColor(255, 192, 192));
  EXPECT_EQ(cell.data(Qt::ForegroundRole).value<QColor>(), QColor(Qt::black));
  table.setBackground(1, 1, white);
  EXPECT_FALSE(cell.data(Qt::BackgroundRole).isValid()) << "white is the scheme's own";
}

TEST_F(TableOnDesktop, TheMarkIsPaleWhileKeysGoElsewhere) {
  const auto markedColour = [this] {
    settle();
    const QRect cell = view()->visualRect(view()->currentIndex());
    return view()->viewport()->grab().toImage().pixelColor(cell.bottomRight() - QPoint(4, 4));
  };
  clickCell(2, 1);
  const QColor withFocus = markedColour();
  click(faceOf(field));
  const QColor without = markedColour();
  const QColor base = view()->palette().color(QPalette::Base);
  EXPECT_GT(without.lightness(), withFocus.lightness() + 30) << "on the light scheme";
  EXPECT_LT(without.lightness(), base.lightness());
}

TEST_F(TableOnDesktop, AlignsAndEmboldensAsTheModelSays) {
  table.setLook(1, 0, {white, Alignment::right, true, false});
  const QModelIndex cell = view()->model()->index(0, 0);
  EXPECT_TRUE(cell.data(Qt::TextAlignmentRole).value<Qt::Alignment>() & Qt::AlignRight);
  EXPECT_TRUE(cell.data(Qt::FontRole).value<QFont>().bold());
}

TEST_F(TableOnDesktop, ARowOfDoubleHeightIsTwiceAsHigh) {
  const int normal = view()->rowHeight(0);
  table.setRowHeight(1, 2 * Table::normalRowHeight);
  EXPECT_EQ(view()->rowHeight(0), 2 * normal);
  table.setRowHeight(1, Table::normalRowHeight);
  EXPECT_EQ(view()->rowHeight(0), normal);
}

TEST_F(TableOnDesktop, ColumnsAreWideEnoughForTheirWidthAndTheirHeading) {
  table.setColumnWidth(0, 1440);
  EXPECT_GE(view()->columnWidth(0), view()->logicalDpiX());
  table.setCell(0, 1, "Общее количество отгруженного товара");
  EXPECT_GE(view()->columnWidth(1), view()->horizontalHeader()->sectionSizeHint(1));
}

TEST_F(TableOnDesktop, AColumnThatTheUserHasResizedStaysSo) {
  view()->horizontalHeader()->resizeSection(1, 222);
  table.setRowHeight(2, 480);
  table.addItem("more");
  settle();
  EXPECT_EQ(view()->columnWidth(1), 222);
}

TEST_F(TableOnDesktop, ATableThatMarksRowsShowsWholeRows) {
  table.selectsRows = true;
  clickCell(3, 1);
  EXPECT_TRUE(view()->selectionModel()->isRowSelected(2));
}

TEST_F(TableOnDesktop, ATableBehindADisabledFormIsNotMoved) {
  form.setEnabled(false);
  clickCell(3, 1);
  EXPECT_EQ(table.row(), 1);
  EXPECT_EQ(shownCurrent().first, 1);
}

}  // namespace
}  // namespace awizo::test
