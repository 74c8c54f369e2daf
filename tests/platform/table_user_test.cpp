#include "form_fixture.h"
#include "platform/forms/keys.h"
#include "platform/forms/table.h"
#include "platform/forms/text_field.h"

namespace awizo::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// A table of five columns, the second and last of no width, and nine rows below the heading.
class TableUser : public FormTest {
 protected:
  TextField other{form, "other"};
  Table table{form, "table", 5, 10};

  TableUser() {
    table.setColumnWidth(1, 0);
    table.setColumnWidth(4, 0);
    form.showMain();
    table.setFocus();
    noteFocus(other);
    noteFocus(table);
    table.onClick = note("Click");
    table.onDoubleClick = note("DoubleClick");
    table.onMouseDown = note("MouseDown");
    table.onMouseUp = note("MouseUp");
    table.onScroll = note("Scroll");
    table.onLeaveCell = [this] { events.push_back("LeaveCell " + place()); };
    table.onSelectionChange = [this] { events.push_back("SelectionChange " + place()); };
    table.onKeyDown = [this](std::int16_t code, bool shift) { noteKey("KeyDown", code, shift); };
    table.onKeyUp = [this](std::int16_t code, bool shift) { noteKey("KeyUp", code, shift); };
    table.onKeyPress = [this](std::int16_t& code) { noteKey("KeyPress", code, false); };
  }

  std::string place() const {
    return std::to_string(table.row()) + "," + std::to_string(table.column());
  }
  std::string mark() const {
    return std::to_string(table.rowSel()) + "," + std::to_string(table.columnSel());
  }
  void noteKey(const std::string& event, std::int16_t code, bool shift) {
    events.push_back(event + " " + std::to_string(code) + (shift ? " shift" : ""));
  }
  /// The current cell after a key.
  std::string after(std::int16_t code) {
    table.userKey(code);
    return place();
  }
};

TEST_F(TableUser, ClickOnAnotherCellMovesTheFocusFirstThenTheCell) {
  other.setFocus();
  takeEvents();
  table.userCell(3, 2);
  EXPECT_THAT(events,
              ElementsAre("other.Validate", "other.LostFocus", "table.GotFocus", "MouseDown",
                          "LeaveCell 1,0", "SelectionChange 3,2", "MouseUp", "Click"));
}

TEST_F(TableUser, ClickOnTheCurrentCellLeavesNoCell) {
  table.userCell(1, 0);
  EXPECT_THAT(events, ElementsAre("MouseDown", "MouseUp", "Click"));
}

TEST_F(TableUser, GoingElsewhereWithTheFocusLeavesNoCell) {
  other.userFocus();
  EXPECT_THAT(events, ElementsAre("table.Validate", "table.LostFocus", "other.GotFocus"));
}

TEST_F(TableUser, HeadingsHiddenColumnsAndMissingCellsCanNotBeClicked) {
  EXPECT_EQ(refusal([&] { table.userCell(0, 0); }), "a heading row of table can't be clicked");
  EXPECT_EQ(refusal([&] { table.userCell(1, 1); }), "the column isn't shown in table");
  EXPECT_EQ(refusal([&] { table.userCell(10, 0); }), "table has no such cell");
  EXPECT_EQ(refusal([&] { table.userCell(1, 5); }), "table has no such cell");
  EXPECT_EQ(refusal([&] { table.userSelect(1, 0, 2, 4); }), "the column isn't shown in table");
  EXPECT_THAT(events, IsEmpty());
  EXPECT_EQ(place(), "1,0");
}

TEST_F(TableUser, RefusedClickMovesNoFocus) {
  other.setFocus();
  takeEvents();
  EXPECT_NE(refusal([&] { table.userCell(0, 0); }), "");
  EXPECT_EQ(form.focus(), &other);
  EXPECT_THAT(events, IsEmpty());
}

TEST_F(TableUser, ClickScrollsTheCellIntoViewBeforeTheSelectionChange) {
  table.setViewHeight(4 * 240);
  table.userCell(6, 0);
  EXPECT_EQ(table.topRow(), 4);
  EXPECT_THAT(events, ElementsAre("MouseDown", "LeaveCell 1,0", "Scroll", "SelectionChange 6,0",
                                  "MouseUp", "Click"));
}

TEST_F(TableUser, ClickEndsWhenTheFocusTookTheRowsAway) {
  other.setFocus();
  other.onLostFocus = [&] { table.setRows(3); };
  takeEvents();
  table.userCell(8, 0);
  EXPECT_EQ(place(), "1,0");
}

TEST_F(TableUser, DoubleClickActsOnTheCurrentCell) {
  other.setFocus();
  takeEvents();
  table.userDoubleClick();
  EXPECT_THAT(events, ElementsAre("other.Validate", "other.LostFocus", "table.GotFocus",
                                  "MouseDown", "MouseUp", "Click", "DoubleClick"));
}

TEST_F(TableUser, CurrentCellThatIsNotShownCanNotBeDoubleClicked) {
  table.setColumn(4);
  EXPECT_EQ(refusal([&] { table.userDoubleClick(); }), "the column isn't shown in table");
  table.setColumn(0);
  table.setRow(0);
  EXPECT_EQ(refusal([&] { table.userDoubleClick(); }), "a heading row of table can't be clicked");
}

TEST_F(TableUser, ArrowsMoveOverTheShownColumnsAndNeverEnterTheHeading) {
  EXPECT_EQ(after(keys::up), "1,0");
  EXPECT_EQ(after(keys::left), "1,0");
  EXPECT_EQ(after(keys::right), "1,2");
  EXPECT_EQ(after(keys::right), "1,3");
  EXPECT_EQ(after(keys::right), "1,3");
  EXPECT_EQ(after(keys::down), "2,3");
  EXPECT_EQ(after(keys::left), "2,2");
  EXPECT_EQ(after(keys::left), "2,0");
  EXPECT_EQ(after(keys::up), "1,0");
}

TEST_F(TableUser, HomeAndEndGoToTheFirstAndLastShownColumn) {
  table.setColumnWidth(0, 0);
  EXPECT_EQ(after(keys::end), "1,3");
  EXPECT_EQ(after(keys::home), "1,2");
}

TEST_F(TableUser, PageKeysMoveByTheRowsThatHaveRoom) {
  table.setViewHeight(5 * 240);
  EXPECT_EQ(after(keys::pageDown), "4,0");
  EXPECT_EQ(after(keys::pageDown), "7,0");
  EXPECT_EQ(after(keys::pageDown), "9,0");
  EXPECT_EQ(after(keys::pageUp), "6,0");
  table.setRowHeight(5, 720);
  EXPECT_EQ(after(keys::pageUp), "5,0");
  EXPECT_EQ(after(keys::pageUp), "4,0");
  EXPECT_EQ(after(keys::pageUp), "1,0");
  EXPECT_EQ(after(keys::pageUp), "1,0");
}

TEST_F(TableUser, PageKeysMoveARowThatIsHigherThanTheView) {
  table.setViewHeight(5 * 240);
  table.setRowHeight(2, 2400);
  EXPECT_EQ(after(keys::pageDown), "2,0");
  EXPECT_EQ(after(keys::pageDown), "3,0");
}

TEST_F(TableUser, PageKeysMoveTenRowsWhereNoHostSaysWhatIsShown) {
  table.setRows(40);
  EXPECT_EQ(after(keys::pageDown), "10,0");
}

TEST_F(TableUser, TableWithoutAShownColumnMovesByRowsAlone) {
  for (int column = 0; column < table.columns(); ++column) table.setColumnWidth(column, 0);
  EXPECT_EQ(after(keys::right), "1,0");
  EXPECT_EQ(after(keys::end), "1,0");
  EXPECT_EQ(after(keys::down), "2,0");
}

TEST_F(TableUser, KeyRaisesItsEventsAroundTheMove) {
  table.userKey(keys::down);
  EXPECT_THAT(events,
              ElementsAre("KeyDown 40", "LeaveCell 1,0", "SelectionChange 2,0", "KeyUp 40"));
}

TEST_F(TableUser, KeyForACharacterRaisesKeyPress) {
  table.userKey(keys::enter);
  EXPECT_THAT(events, ElementsAre("KeyDown 13", "KeyPress 13", "KeyUp 13"));
}

TEST_F(TableUser, KeyTakesTheFocusFirst) {
  other.setFocus();
  takeEvents();
  table.userKey(keys::enter);
  EXPECT_THAT(events, ElementsAre("other.Validate", "other.LostFocus", "table.GotFocus",
                                  "KeyDown 13", "KeyPress 13", "KeyUp 13"));
}

TEST_F(TableUser, KeyComesUpWhereTheFocusHasGone) {
  table.onKeyPress = [&](std::int16_t&) { other.setFocus(); };
  table.userKey(keys::enter);
  EXPECT_THAT(events, ElementsAre("KeyDown 13", "table.LostFocus", "other.GotFocus"));
}

TEST_F(TableUser, ShiftWithAnArrowExtendsTheMarkAndKeepsTheCell) {
  table.userKey(keys::down, true);
  EXPECT_THAT(takeEvents(),
              ElementsAre("KeyDown 40 shift", "SelectionChange 1,0", "KeyUp 40 shift"));
  table.userKey(keys::right, true);
  EXPECT_EQ(place(), "1,0");
  EXPECT_EQ(mark(), "2,2");
  table.userKey(keys::up);
  EXPECT_EQ(mark(), "1,0");
}

TEST_F(TableUser, ArrowThatCanNotMoveEndsTheMark) {
  table.userKey(keys::down, true);
  takeEvents();
  table.userKey(keys::up);
  EXPECT_THAT(events, ElementsAre("KeyDown 38", "SelectionChange 1,0", "KeyUp 38"));
}

TEST_F(TableUser, SelectingARangeHoldsTheMouseFromTheFirstCellToTheSecond) {
  table.userSelect(3, 0, 5, 2);
  EXPECT_EQ(place(), "3,0");
  EXPECT_EQ(mark(), "5,2");
  EXPECT_THAT(events, ElementsAre("MouseDown", "LeaveCell 1,0", "SelectionChange 3,0",
                                  "SelectionChange 3,0", "MouseUp"));
}

TEST_F(TableUser, SelectionProcedureThatCollapsesTheMarkComesToRest) {
  bool held = false;
  table.onMouseDown = [&] { held = true; };
  table.onMouseUp = [&] { held = false; };
  table.onSelectionChange = [&] {
    if (!held) return;
    table.setColumn(0);
    table.setRowSel(table.row());
    table.setColumnSel(table.columns() - 1);
  };
  table.userSelect(3, 0, 5, 2);
  EXPECT_EQ(place(), "3,0");
  EXPECT_EQ(mark(), "3,4");
  EXPECT_FALSE(held);
}

TEST_F(TableUser, ScrollingTakesNoFocusAndLeavesTheCell) {
  other.setFocus();
  takeEvents();
  table.userScroll(5);
  EXPECT_EQ(table.topRow(), 5);
  EXPECT_EQ(form.focus(), &other);
  EXPECT_EQ(place(), "1,0");
  EXPECT_THAT(events, ElementsAre("Scroll"));
}

TEST_F(TableUser, ScrollingToARowThatIsNotThereIsRefused) {
  EXPECT_EQ(refusal([&] { table.userScroll(0); }), "table has no such row");
  EXPECT_EQ(refusal([&] { table.userScroll(10); }), "table has no such row");
}

TEST_F(TableUser, DisabledTableRefusesEverything) {
  table.setEnabled(false);
  for (const auto& act : std::vector<std::function<void()>>{
           [&] { table.userCell(1, 0); }, [&] { table.userDoubleClick(); },
           [&] { table.userKey(keys::down); }, [&] { table.userSelect(1, 0, 2, 0); },
           [&] { table.userScroll(2); }}) {
    EXPECT_EQ(refusal(act), "table is disabled");
  }
}

TEST_F(TableUser, DisabledTableSaysSoWhateverTheCell) {
  table.setColumn(1);
  table.setEnabled(false);
  for (const auto& act : std::vector<std::function<void()>>{
           [&] { table.userCell(0, 0); }, [&] { table.userDoubleClick(); },
           [&] { table.userSelect(1, 1, 20, 1); }, [&] { table.userScroll(20); }}) {
    EXPECT_EQ(refusal(act), "table is disabled");
  }
}

}  // namespace
}  // namespace awizo::test
