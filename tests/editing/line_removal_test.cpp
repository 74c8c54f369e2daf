#include "support/control/desk.h"

namespace awizo::test {
namespace {

using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class RemovingALine : public ::testing::Test, public Desk {
 protected:
  RemovingALine() {
    for (const char* ean : {"1", "2", "3"}) addLine({.ean = ean});
  }

  void remove(int row) {
    lines.userCell(row, GRD_POZ_EAN);
    form.btnUsun.userClick();
  }
};

TEST(RemovingNoLine, DoesNothing) {
  Desk desk;
  desk.form.txtNrAwiza.userType("WZ-1");
  desk.form.btnUsun.userClick();
  EXPECT_EQ(desk.form.txtNrAwiza.text(), "WZ-1");
  EXPECT_THAT(desk.takeBoxes(), IsEmpty());
}

TEST_F(RemovingALine, LowerLinesMoveUpAndKeepTheirNumbers) {
  remove(2);
  EXPECT_EQ(session.LineCount, 2);
  EXPECT_EQ(lines.rows(), 3);
  EXPECT_THAT(column(lines, GRD_POZ_LP), ElementsAre("1", "3"));
  EXPECT_THAT(column(lines, GRD_POZ_EAN), ElementsAre("1", "3"));
  EXPECT_EQ(lines.row(), 2);
  EXPECT_TRUE(lines.redraw());
  EXPECT_EQ(TestEditor::row(totals, 1), (std::vector<std::string>{"2", "10,000", "0,00"}));
  addLine({.ean = "4"});
  EXPECT_THAT(column(lines, GRD_POZ_LP), ElementsAre("1", "3", "3"));
  EXPECT_THAT(takeBoxes(), IsEmpty());
}

TEST_F(RemovingALine, AfterTheLastRowTheRowAboveIsCurrent) {
  remove(3);
  EXPECT_EQ(lines.row(), 2);
  EXPECT_THAT(column(lines, GRD_POZ_EAN), ElementsAre("1", "2"));
}

TEST_F(RemovingALine, TheColourGoesWithTheRow) {
  lines.setBackground(2, 1, pink);
  remove(1);
  EXPECT_EQ(lines.look(1, 1).background, pink);
  remove(1);
  EXPECT_EQ(lines.look(1, 1).background, white);
}

TEST_F(RemovingALine, ValidLinesAreCountedAnew) {
  lines.setCell(2, GRD_POZ_EAN, "ABC");
  remove(1);
  EXPECT_EQ(form.ValidLineCount, 1);
}

TEST_F(RemovingALine, RowsBeyondTheLinesAreDropped) {
  lines.setRows(7);
  remove(1);
  EXPECT_THAT(column(lines, GRD_POZ_EAN), ElementsAre("2", "3"));
}

TEST_F(RemovingALine, PackagesStay) {
  addPackage({.description = "Поддон"});
  lines.setCell(1, GRD_POZ_PACK_REFS, "2@Поддон@1@1,000");
  remove(1);
  EXPECT_EQ(session.IloscPozycjiOpak, 1);
}

TEST_F(RemovingALine, TheLastLineTakesTheHeaderWithIt) {
  addPackage({.description = "Поддон"});
  form.txtNrAwiza.userType("WZ-1");
  form.lblILNKupWart.setCaption("9520002000019");
  remove(1);
  remove(1);
  EXPECT_EQ(form.txtNrAwiza.text(), "WZ-1");
  remove(1);
  EXPECT_EQ(session.LineCount, 0);
  EXPECT_EQ(lines.rows(), 2);
  EXPECT_THAT(TestEditor::row(lines, 1), Each(""));
  EXPECT_THAT(TestEditor::row(totals, 1), Each(""));
  EXPECT_EQ(form.txtNrAwiza.text(), "");
  EXPECT_EQ(form.lblILNKupWart.caption(), "");
  EXPECT_EQ(form.ValidLineCount, 0);
  EXPECT_EQ(session.IloscPozycjiOpak, 1);
  EXPECT_EQ(packages.cell(1, GRD_OPAK_DESC), "Поддон");
  EXPECT_TRUE(lines.redraw());
}

TEST_F(RemovingALine, AnOpenEditIsClosedFirst) {
  lines.setCell(1, GRD_POZ_QTY_ORDERED, "9,000");
  lines.userCell(1, GRD_POZ_QTY_DESPATCHED);
  lines.userDoubleClick();
  form.txtEdycja.userType("7");
  form.btnUsun.userClick();
  EXPECT_FALSE(form.txtEdycja.visible());
  EXPECT_THAT(column(lines, GRD_POZ_EAN), ElementsAre("2", "3"));
  EXPECT_THAT(column(lines, GRD_POZ_QTY_DESPATCHED), ElementsAre("5,000", "5,000"));
}

TEST_F(RemovingALine, AHeadingRowCantBeRemoved) {
  lines.setRow(0);
  form.btnUsun.userClick();
  EXPECT_THAT(takeBoxes(), ElementsAre("Произошла ошибка в btnUsun_Click()|critical|OK|Cannot do a "
                                       "RemoveItem on a fixed row"));
  // Nothing is undone: the line was counted out, and the table waits for its painting.
  EXPECT_EQ(session.LineCount, 2);
  EXPECT_EQ(lines.rows(), 4);
  EXPECT_FALSE(lines.redraw());
}

TEST_F(RemovingALine, ARowPastTheLimitCanBeRemoved) {
  putLines(1424);
  remove(1424);
  EXPECT_THAT(takeBoxes(), IsEmpty());
  EXPECT_EQ(session.LineCount, 1423);
  EXPECT_EQ(form.ValidLineCount, 1423);
}

TEST_F(RemovingALine, WithTwoRowsPastTheLimitTheCountingFails) {
  putLines(1425);
  remove(1);
  EXPECT_THAT(takeBoxes(), ElementsAre("Произошла ошибка в btnUsun_Click()|critical|OK|Overflow"));
  EXPECT_EQ(session.LineCount, 1424);
  EXPECT_EQ(lines.rows(), 1425);
  EXPECT_FALSE(lines.redraw());
}

}  // namespace
}  // namespace awizo::test
