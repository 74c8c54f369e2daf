#include "form_fixture.h"
#include "platform/forms/table.h"

namespace awizo::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class TableCells : public FormTest {
 protected:
  Table table{form, "table", 3};

  TableCells() { form.showMain(); }

  void noteEvents() {
    table.onLeaveCell = note("LeaveCell");
    table.onSelectionChange = note("SelectionChange");
    table.onScroll = note("Scroll");
  }
};

TEST_F(TableCells, NewTableHasAHeadingAndOneEmptyRow) {
  EXPECT_EQ(table.rows(), 2);
  EXPECT_EQ(table.columns(), 3);
  EXPECT_EQ(table.fixedRows(), 1);
  EXPECT_EQ(table.row(), 1);
  EXPECT_EQ(table.column(), 0);
  EXPECT_EQ(table.topRow(), 1);
  EXPECT_EQ(table.cell(1, 1), "");
  EXPECT_EQ(table.rowHeight(1), 240);
}

TEST_F(TableCells, FlatIndexIsRowTimesColumnsPlusColumn) {
  table.setCell(4, "four");
  EXPECT_EQ(table.cell(1, 1), "four");
  table.setCell(0, 2, "heading");
  EXPECT_EQ(table.cell(2), "heading");
}

TEST_F(TableCells, IndexOutOfRangeIsAnErrorAndChangesNothing) {
  const std::string error = "381 Subscript out of range";
  EXPECT_EQ(errorOf([&] { table.setCell(6, "x"); }), error);
  EXPECT_EQ(errorOf([&] { table.setCell(-1, "x"); }), error);
  EXPECT_EQ(errorOf([&] { (void)table.cell(6); }), error);
  EXPECT_EQ(errorOf([&] { (void)table.cell(0, 3); }), error);
  EXPECT_EQ(errorOf([&] { table.setCell(2, 0, "x"); }), error);
  EXPECT_EQ(errorOf([&] { (void)table.look(1, -1); }), error);
  EXPECT_EQ(errorOf([&] { table.setBackground(1, 3, pink); }), error);
  EXPECT_EQ(table.cell(5), "");
}

TEST_F(TableCells, AddItemAppendsARowAndLeavesTheCurrentRow) {
  noteEvents();
  table.addItem("1");
  EXPECT_EQ(table.rows(), 3);
  EXPECT_EQ(table.cell(2, 0), "1");
  EXPECT_EQ(table.cell(2, 1), "");
  EXPECT_EQ(table.row(), 1);
  EXPECT_THAT(events, IsEmpty());
}

TEST_F(TableCells, RemovedRowTakesItsTextsColoursAndHeightWithIt) {
  table.addItem("2");
  table.addItem("3");
  table.setBackground(1, 1, pink);
  table.setRowHeight(1, 480);
  table.setBackground(3, 2, pink);
  table.removeItem(1);
  EXPECT_EQ(table.rows(), 3);
  EXPECT_EQ(table.cell(1, 0), "2");
  EXPECT_EQ(table.look(1, 1).background, white);
  EXPECT_EQ(table.rowHeight(1), 240);
  EXPECT_EQ(table.look(2, 2).background, pink);
}

TEST_F(TableCells, RemovedRowLeavesTheCurrentRowsNumberUnlessItLiesPastTheEnd) {
  table.setRows(5);
  table.setRow(2);
  noteEvents();
  table.removeItem(1);
  EXPECT_EQ(table.row(), 2);
  table.setRow(3);
  takeEvents();
  table.removeItem(1);
  EXPECT_EQ(table.row(), 2);
  EXPECT_EQ(table.rowSel(), 2);
  EXPECT_THAT(events, IsEmpty());
}

TEST_F(TableCells, RowsThatCanNotBeRemovedAreErrors) {
  EXPECT_EQ(errorOf([&] { table.removeItem(0); }), "30000 Cannot do a RemoveItem on a fixed row");
  EXPECT_EQ(errorOf([&] { table.removeItem(1); }), "30015 Can not remove last non-fixed row");
  EXPECT_EQ(errorOf([&] { table.removeItem(2); }), "30009 Invalid Row value");
  EXPECT_EQ(errorOf([&] { table.removeItem(-1); }), "30009 Invalid Row value");
  EXPECT_EQ(table.rows(), 2);
}

TEST_F(TableCells, SeveralRowsGoAsOneChange) {
  table.setRows(6);
  for (int row = 1; row < 6; ++row) table.setCell(row, 0, std::to_string(row));
  table.setBackground(3, 1, pink);
  table.setRow(5);
  int changes = 0;
  table.observers.add([&](const Change& change) { changes += change.aspect == Aspect::rows; });
  table.removeItems({1, 4, 5});
  EXPECT_EQ(changes, 1);
  ASSERT_EQ(table.rows(), 3);
  EXPECT_EQ(table.cell(1, 0) + table.cell(2, 0), "23");
  EXPECT_EQ(table.look(2, 1).background, pink);
  EXPECT_EQ(table.row(), 2);
  table.removeItems({});
  EXPECT_EQ(changes, 1);
}

TEST_F(TableCells, SeveralRowsOfWhichOneCantGoAllStay) {
  table.setRows(4);
  EXPECT_EQ(errorOf([&] {
              table.removeItems({0, 1});
            }),
            "30000 Cannot do a RemoveItem on a fixed row");
  EXPECT_EQ(errorOf([&] { table.removeItems({1, 4}); }), "30009 Invalid Row value");
  EXPECT_EQ(errorOf([&] {
              table.removeItems({1, 2, 3});
            }),
            "30015 Can not remove last non-fixed row");
  EXPECT_EQ(table.rows(), 4);
}

TEST_F(TableCells, GrowingAddsEmptyRowsAndShrinkingDropsTheLast) {
  table.setCell(1, 0, "1");
  table.setRows(4);
  EXPECT_EQ(table.cell(3, 2), "");
  table.setCell(3, 2, "x");
  table.setRows(3);
  table.setRows(4);
  EXPECT_EQ(table.cell(3, 2), "");
  EXPECT_EQ(table.cell(1, 0), "1");
}

TEST_F(TableCells, ShrinkingHoldsCurrentAndFirstShownRowWithin) {
  table.setRows(50);
  table.setRow(40);
  table.setTopRow(35);
  noteEvents();
  table.setRows(2);
  EXPECT_EQ(table.row(), 1);
  EXPECT_EQ(table.rowSel(), 1);
  EXPECT_EQ(table.topRow(), 1);
  EXPECT_THAT(events, IsEmpty());
}

TEST_F(TableCells, RowCountsThatDoNotFitAreErrors) {
  EXPECT_EQ(errorOf([&] { table.setRows(-1); }), "30009 Invalid Row value");
  EXPECT_EQ(errorOf([&] { table.setRows(1); }),
            "30016 FixedRows must be at least one less than Rows value");
  EXPECT_EQ(errorOf([&] { table.setFixedRows(2); }),
            "30016 FixedRows must be at least one less than Rows value");
  EXPECT_EQ(errorOf([&] { table.setFixedRows(-1); }), "30009 Invalid Row value");
  EXPECT_EQ(table.rows(), 2);
  EXPECT_EQ(table.fixedRows(), 1);
}

TEST_F(TableCells, ClearEmptiesTextsAndLooksHeadingsTooAndKeepsCountsAndSizes) {
  table.addItem("2");
  table.setCell(0, 0, "№ п.п");
  table.setLook(0, 0, {pink, Alignment::centre, true, true});
  table.setBackground(2, 1, pink);
  table.setRowHeight(2, 480);
  table.setColumnWidth(1, 0);
  table.clear();
  EXPECT_EQ(table.rows(), 3);
  EXPECT_EQ(table.cell(0, 0), "");
  EXPECT_EQ(table.cell(2, 0), "");
  EXPECT_EQ(table.look(0, 0), CellLook{});
  EXPECT_EQ(table.look(2, 1), CellLook{});
  EXPECT_EQ(table.rowHeight(2), 480);
  EXPECT_EQ(table.columnWidth(1), 0);
}

TEST_F(TableCells, ColumnAlignmentHoldsForRowsThatAreThereThatComeAndAfterClear) {
  table.setColumnAlignment(2, Alignment::right);
  table.setAlignment(0, 2, Alignment::centre);
  table.addItem("2");
  EXPECT_EQ(table.look(1, 2).alignment, Alignment::right);
  EXPECT_EQ(table.look(2, 2).alignment, Alignment::right);
  EXPECT_EQ(table.look(0, 2).alignment, Alignment::centre);
  EXPECT_EQ(table.look(2, 1).alignment, Alignment::left);
  EXPECT_EQ(table.columnAlignment(2), Alignment::right);
  table.clear();
  EXPECT_EQ(table.look(1, 2).alignment, Alignment::right);
  EXPECT_EQ(table.look(0, 2).alignment, Alignment::right);
}

TEST_F(TableCells, CurrentCellsTextIsReadAndWritten) {
  table.setColumn(2);
  table.setText("x");
  EXPECT_EQ(table.cell(1, 2), "x");
  EXPECT_EQ(table.text(), "x");
}

TEST_F(TableCells, RowAndColumnByCodeAreTwoChanges) {
  table.setRows(4);
  noteEvents();
  table.onLeaveCell = [&] {
    events.push_back("Leave " + std::to_string(table.row()) + "," + std::to_string(table.column()));
  };
  table.setRow(3);
  table.setColumn(1);
  EXPECT_THAT(events, ElementsAre("Leave 1,0", "SelectionChange", "Leave 3,0", "SelectionChange"));
}

TEST_F(TableCells, EqualRowAndColumnAreNoChange) {
  noteEvents();
  table.setRow(1);
  table.setColumn(0);
  EXPECT_THAT(events, IsEmpty());
}

TEST_F(TableCells, RowAndColumnOutOfRangeAreErrors) {
  EXPECT_EQ(errorOf([&] { table.setRow(2); }), "30009 Invalid Row value");
  EXPECT_EQ(errorOf([&] { table.setRow(-1); }), "30009 Invalid Row value");
  EXPECT_EQ(errorOf([&] { table.setColumn(3); }), "30010 Invalid Col value");
  EXPECT_EQ(errorOf([&] { table.setColumn(-1); }), "30010 Invalid Col value");
  EXPECT_EQ(errorOf([&] { table.setRowSel(2); }), "30009 Invalid Row value");
  EXPECT_EQ(errorOf([&] { table.setColumnSel(3); }), "30010 Invalid Col value");
  EXPECT_EQ(errorOf([&] { table.setTopRow(0); }), "30009 Invalid Row value");
  EXPECT_EQ(errorOf([&] { table.setRowHeight(2, 1); }), "30009 Invalid Row value");
  EXPECT_EQ(errorOf([&] { table.setColumnWidth(3, 1); }), "30010 Invalid Col value");
}

TEST_F(TableCells, HeadingRowCanBeCurrentByCode) {
  table.setRow(0);
  EXPECT_EQ(table.row(), 0);
}

TEST_F(TableCells, NewCurrentCellEndsTheMarkedRange) {
  table.setRows(5);
  noteEvents();
  table.setRowSel(4);
  table.setColumnSel(2);
  EXPECT_THAT(takeEvents(), ElementsAre("SelectionChange", "SelectionChange"));
  table.setColumnSel(2);
  EXPECT_THAT(takeEvents(), IsEmpty());
  table.setRow(2);
  EXPECT_EQ(table.rowSel(), 2);
  EXPECT_EQ(table.columnSel(), 0);
}

TEST_F(TableCells, LeaveCellThatTakesTheRowAwayStopsTheChange) {
  table.setRows(5);
  table.onLeaveCell = [&] { table.setRows(2); };
  table.onSelectionChange = note("SelectionChange");
  table.setRow(4);
  EXPECT_EQ(table.row(), 1);
  EXPECT_THAT(events, IsEmpty());
}

TEST_F(TableCells, CurrentCellByCodeScrollsNothing) {
  table.setRows(100);
  noteEvents();
  table.setRow(90);
  EXPECT_EQ(table.topRow(), 1);
  EXPECT_THAT(events, ElementsAre("LeaveCell", "SelectionChange"));
}

TEST_F(TableCells, ReadingTheCellsPlaceScrollsItIntoView) {
  table.setRows(100);
  table.setRow(90);
  noteEvents();
  EXPECT_EQ(table.cellTop(), 240 + 9 * 240);
  EXPECT_EQ(table.topRow(), 81);
  EXPECT_THAT(takeEvents(), ElementsAre("Scroll"));
  EXPECT_EQ(table.cellTop(), 240 + 9 * 240);
  EXPECT_THAT(takeEvents(), IsEmpty());
  table.setRow(10);
  takeEvents();
  EXPECT_EQ(table.cellLeft(), 0);
  EXPECT_EQ(table.topRow(), 10);
  EXPECT_EQ(table.cellTop(), 240);
  EXPECT_THAT(events, ElementsAre("Scroll"));
}

TEST_F(TableCells, CellsPlaceFollowsWidthsAndHeights) {
  table.setRows(5);
  table.setColumnWidth(0, 525);
  table.setColumnWidth(1, 0);
  table.setColumnWidth(2, 1850);
  table.setRowHeight(1, 480);
  table.setRow(2);
  table.setColumn(2);
  EXPECT_EQ(table.cellLeft(), 525);
  EXPECT_EQ(table.cellTop(), 240 + 480);
  EXPECT_EQ(table.cellWidth(), 1850);
  EXPECT_EQ(table.cellHeight(), 240);
  table.setRow(0);
  EXPECT_EQ(table.cellTop(), 0);
}

TEST_F(TableCells, ScrollProcedureThatReadsTheCellsPlaceComesToRest) {
  table.setRows(100);
  table.setRow(1);
  table.onScroll = [&] {
    events.push_back("Scroll " + std::to_string(table.topRow()));
    table.cellTop();
  };
  table.userScroll(50);
  EXPECT_EQ(table.topRow(), 1);
  EXPECT_THAT(events, ElementsAre("Scroll 50", "Scroll 1"));
}

TEST_F(TableCells, RowHigherThanTheViewIsShownFromItsTop) {
  table.setRows(20);
  table.setViewHeight(480);
  table.setRowHeight(15, 2400);
  table.setRow(15);
  EXPECT_EQ(table.cellTop(), 240);
  EXPECT_EQ(table.topRow(), 15);
}

TEST_F(TableCells, TopRowByCodeRaisesScrollOnce) {
  table.setRows(20);
  noteEvents();
  table.setTopRow(5);
  table.setTopRow(5);
  EXPECT_THAT(events, ElementsAre("Scroll"));
}

TEST_F(TableCells, ObserverIsToldWhichCellChanged) {
  table.observers.add([&](const Change& change) {
    events.push_back(std::to_string(static_cast<int>(change.aspect)) + " " +
                     std::to_string(change.row) + "," + std::to_string(change.column));
  });
  const auto told = [](Aspect aspect, int row, int column) {
    return std::to_string(static_cast<int>(aspect)) + " " + std::to_string(row) + "," +
           std::to_string(column);
  };
  table.setCell(1, 2, "x");
  table.setCell(1, 2, "x");
  table.setBackground(1, 1, pink);
  table.setBackground(1, 1, pink);
  table.setRowHeight(1, 480);
  table.setRedraw(false);
  table.setRedraw(false);
  table.addItem("2");
  table.setRow(2);
  EXPECT_THAT(events, ElementsAre(told(Aspect::cell, 1, 2), told(Aspect::cell, 1, 1),
                                  told(Aspect::layout, -1, -1), told(Aspect::redraw, -1, -1),
                                  told(Aspect::rows, -1, -1), told(Aspect::selection, -1, -1)));
  EXPECT_FALSE(table.redraw());
}

TEST_F(TableCells, ThousandsOfRowsCanGoOneByOne) {
  Table large(form, "large", 23);
  for (int row = 2; row <= 2183; ++row) large.addItem(std::to_string(row));
  while (large.rows() > 2) large.removeItem(1);
  EXPECT_EQ(large.cell(1, 0), "2183");
}

}  // namespace
}  // namespace awizo::test
