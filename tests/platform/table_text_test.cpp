#include "platform/forms/table_text.h"

#include <gtest/gtest.h>

#include "support/scripted_screen.h"

namespace awizo::test {
namespace {

struct TableText : ::testing::Test {
  TableText() {
    for (int row = 1; row < 4; ++row) {
      for (int column = 0; column < 4; ++column) {
        table.setCell(row, column, std::to_string(row) + "/" + std::to_string(column));
      }
    }
    table.setColumnWidth(2, 0);
    form.showMain();
  }
  ScriptedScreen face;
  Screen screen{face};
  Form form{screen, "Main"};
  Table table{form, "table", 4, 4};
};

TEST_F(TableText, IsTheCurrentCell) {
  table.userCell(2, 1);
  EXPECT_EQ(markedText(table), "2/1\n");
}

TEST_F(TableText, IsTheMarkedRangeWithoutHiddenColumnsWhicheverCornerCameFirst) {
  table.userSelect(3, 3, 2, 1);
  EXPECT_EQ(markedText(table), "2/1\t2/3\n3/1\t3/3\n");
}

TEST_F(TableText, IsTheWholeRowWhereTheCurrentCellIsHidden) {
  table.setRow(3);
  table.setColumn(2);
  EXPECT_EQ(markedText(table), "3/0\t3/1\t3/3\n");
}

TEST_F(TableText, IsTheWholeRowWhereTheTableMarksRows) {
  table.selectsRows = true;
  table.userCell(2, 1);
  EXPECT_EQ(markedText(table), "2/0\t2/1\t2/3\n");
}

TEST_F(TableText, QuotesWhatWouldPartCells) {
  table.setCell(1, 0, "a\tb");
  table.setCell(1, 1, "сок \"Утро\"");
  table.userSelect(1, 0, 1, 1);
  EXPECT_EQ(markedText(table), "\"a\tb\"\t\"сок \"\"Утро\"\"\"\n");
}

TEST_F(TableText, TheUserGoesToARowInTheCurrentColumnOrTheFirstShown) {
  table.userCell(1, 3);
  table.userRow(3);
  EXPECT_EQ(table.row(), 3);
  EXPECT_EQ(table.column(), 3);
  table.setColumn(2);
  table.userRow(2);
  EXPECT_EQ(table.row(), 2);
  EXPECT_EQ(table.column(), 0);
  EXPECT_THROW(table.userRow(4), Refused);
}

TEST_F(TableText, IsMissedInARowWhereNoCellHasOne) {
  EXPECT_TRUE(hasText(table, 2));
  for (int column = 0; column < 4; ++column) table.setCell(2, column, column == 3 ? "x" : "");
  EXPECT_TRUE(hasText(table, 2));
  table.setCell(2, 3, "");
  EXPECT_FALSE(hasText(table, 2));
}

}  // namespace
}  // namespace awizo::test
