#include "in_table_editing.h"

namespace awizo::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST_F(InTableEditing, ADoubleClickOpensTheFieldOverTheCellWithItsText) {
  lines.move({100, 200, 5000, 3000});
  openEditor(2);
  EXPECT_TRUE(field.visible());
  EXPECT_EQ(form.focus(), &field);
  EXPECT_EQ(field.text(), "1,000");
  EXPECT_EQ(field.caret(), 5);
  EXPECT_EQ(session.EditRow, 2);
  // After the columns of 525, 1850 and 4625 twips, below the heading and the first line.
  EXPECT_EQ(field.place(), (Place{100 + 525 + 1850 + 4625, 200 + 2 * 240, 2200 - 4, 240 - 4}));
}

TEST_F(InTableEditing, EnterOnTheCellOpensTheFieldToo) {
  lines.userCell(2, GRD_POZ_QTY_DESPATCHED);
  lines.userKey(keys::enter);
  EXPECT_TRUE(field.visible());
  EXPECT_EQ(session.EditRow, 2);
}

TEST_F(InTableEditing, OtherKeysDoNothing) {
  lines.userCell(2, GRD_POZ_QTY_DESPATCHED);
  lines.userKey('7');
  lines.userKey(keys::blank);
  EXPECT_FALSE(field.visible());
  EXPECT_EQ(quantity(2), "1,000");
}

TEST_F(InTableEditing, OtherColumnsCantBeEdited) {
  for (const int column : {GRD_POZ_LP, GRD_POZ_PACKED_QTY}) {
    lines.userCell(2, column);
    lines.userDoubleClick();
    EXPECT_FALSE(field.visible()) << column;
  }
  EXPECT_THAT(face.modalForms(), IsEmpty());
}

TEST_F(InTableEditing, ADoubleClickOnTheEanOpensTheLineDialog) {
  lines.userCell(2, GRD_POZ_EAN);
  closeNextForm();
  lines.userDoubleClick();
  EXPECT_EQ(lineDialog.lblPozycjaTow.caption(), "Позиция номер 2");
  closeNextForm();
  lines.userKey(keys::enter);
  EXPECT_THAT(face.modalForms(), ElementsAre("DlgDodaj", "DlgDodaj"));
}

TEST_F(InTableEditing, ADoubleClickOnTheNameMakesTheRowHighAndLowAgain) {
  lines.userCell(2, GRD_POZ_NAME);
  lines.userDoubleClick();
  EXPECT_EQ(lines.rowHeight(2), 2 * form.GridRowHeight);
  EXPECT_EQ(lines.rowHeight(1), form.GridRowHeight);
  lines.userDoubleClick();
  EXPECT_EQ(lines.rowHeight(2), form.GridRowHeight);
  lines.userKey(keys::enter);
  EXPECT_EQ(lines.rowHeight(2), 2 * form.GridRowHeight);
}

TEST_F(InTableEditing, ARowBelowTwiceTheHeightBecomesHighAndAnyHigherOneLow) {
  lines.userCell(2, GRD_POZ_NAME);
  lines.setRowHeight(2, 2 * form.GridRowHeight - 1);
  lines.userDoubleClick();
  EXPECT_EQ(lines.rowHeight(2), 2 * form.GridRowHeight);
  lines.setRowHeight(2, 3 * form.GridRowHeight);
  lines.userDoubleClick();
  EXPECT_EQ(lines.rowHeight(2), form.GridRowHeight);
}

TEST_F(InTableEditing, WithoutLinesNothingOpens) {
  putLines(0);
  for (const int column : {GRD_POZ_EAN, GRD_POZ_NAME, GRD_POZ_QTY_DESPATCHED}) {
    lines.userCell(1, column);
    lines.userDoubleClick();
    lines.userKey(keys::enter);
  }
  EXPECT_FALSE(field.visible());
  EXPECT_EQ(lines.rowHeight(1), form.GridRowHeight);
  EXPECT_THAT(face.modalForms(), IsEmpty());
}

TEST_F(InTableEditing, EnterTakesTheTextAndSelectsTheNextRow) {
  openEditor(2);
  field.userType("2.5");
  field.userKey(keys::enter);
  EXPECT_EQ(quantity(2), "2,500");
  EXPECT_FALSE(field.visible());
  EXPECT_EQ(form.focus(), &lines);
  expectCurrent(3, GRD_POZ_QTY_DESPATCHED);
  EXPECT_EQ(session.EditRow, 2);
  EXPECT_EQ(totals.cell(1, GRD_SUMA_QTY_DESPATCHED), "4,500");
  EXPECT_EQ(face.lettingEventsRun, 0);
  EXPECT_THAT(takeBoxes(), IsEmpty());
}

TEST_F(InTableEditing, EnterOnTheLastLineDoesntMove) {
  openEditor(3);
  field.userType("4");
  field.userKey(keys::enter);
  EXPECT_EQ(quantity(3), "4,000");
  expectCurrent(3, GRD_POZ_QTY_DESPATCHED);
}

TEST_F(InTableEditing, DownTakesTheTextAndSelectsTheNextRow) {
  openEditor(2);
  field.userType("4");
  // The focus has come back and the edit is closed before the row moves.
  face.onLetEventsRun = [&] {
    EXPECT_EQ(quantity(2), "4,000");
    expectCurrent(2, GRD_POZ_QTY_DESPATCHED);
  };
  field.userKey(keys::down);
  EXPECT_EQ(face.lettingEventsRun, 1);
  expectCurrent(3, GRD_POZ_QTY_DESPATCHED);
  EXPECT_FALSE(field.visible());
}

TEST_F(InTableEditing, DownOnTheLastLineDoesntMove) {
  openEditor(3);
  field.userType("4");
  field.userKey(keys::down);
  EXPECT_EQ(quantity(3), "4,000");
  expectCurrent(3, GRD_POZ_QTY_DESPATCHED);
}

TEST_F(InTableEditing, UpTakesTheTextAndSelectsTheRowAbove) {
  openEditor(2);
  field.userType("4");
  face.onLetEventsRun = [&] { expectCurrent(2, GRD_POZ_QTY_DESPATCHED); };
  field.userKey(keys::up);
  EXPECT_EQ(face.lettingEventsRun, 1);
  EXPECT_EQ(quantity(2), "4,000");
  expectCurrent(1, GRD_POZ_QTY_DESPATCHED);
}

TEST_F(InTableEditing, UpOnTheFirstLineDoesntMove) {
  openEditor(1);
  field.userType("4");
  field.userKey(keys::up);
  EXPECT_EQ(quantity(1), "4,000");
  expectCurrent(1, GRD_POZ_QTY_DESPATCHED);
}

TEST_F(InTableEditing, EscapeKeepsTheCellAndComputesTheTotalsAgain) {
  openEditor(2);
  field.userType("4");
  totals.setCell(1, GRD_SUMA_QTY_DESPATCHED, "stale");
  field.userKey(keys::escape);
  EXPECT_EQ(quantity(2), "1,000");
  EXPECT_FALSE(field.visible());
  EXPECT_EQ(form.focus(), &lines);
  EXPECT_EQ(totals.cell(1, GRD_SUMA_QTY_DESPATCHED), "3,000");
  expectCurrent(3, GRD_POZ_NET_AMOUNT);
}

TEST_F(InTableEditing, KeysOfOtherKindsStayInTheField) {
  openEditor(2);
  field.userType("4");
  for (const std::int16_t code : {keys::left, keys::home, std::int16_t{'7'}}) field.userKey(code);
  EXPECT_TRUE(field.visible());
  EXPECT_EQ(form.focus(), &field);
  EXPECT_EQ(quantity(2), "1,000");
}

TEST_F(InTableEditing, NoMoreThanTheOrderedQuantityIsTaken) {
  openEditor(2);
  field.userType("7");
  field.userKey(keys::enter);
  EXPECT_EQ(quantity(2), "5,000");
}

TEST_F(InTableEditing, ANegativeQuantityBecomesNone) {
  openEditor(2);
  field.userType("-3");
  field.userKey(keys::enter);
  EXPECT_EQ(quantity(2), "0,000");
}

TEST_F(InTableEditing, ALineWithoutAnOrderTakesNothing) {
  for (const char* ordered : {"", "-1,000", "some"}) {
    lines.setCell(2, GRD_POZ_QTY_ORDERED, ordered);
    lines.setCell(2, GRD_POZ_QTY_DESPATCHED, "3,000");
    openEditor(2);
    field.userType("2");
    field.userKey(keys::enter);
    EXPECT_EQ(quantity(2), "0,000") << ordered;
  }
}

TEST_F(InTableEditing, ATextThatIsNoNumberIsToldAndTheCellKeepsItsValue) {
  for (const char* wrong : {"abc", "", "1,2,3"}) {
    for (const std::int16_t key : {keys::enter, keys::up, keys::down}) {
      openEditor(2);
      field.userType(wrong);
      field.userKey(key);
      EXPECT_THAT(takeBoxes(), ElementsAre(noNumber)) << wrong;
      EXPECT_FALSE(field.visible());
      EXPECT_EQ(form.focus(), &lines);
      EXPECT_EQ(quantity(2), "1,000") << wrong;
      EXPECT_EQ(field.text(), "");
    }
  }
}

TEST_F(InTableEditing, ARefusedTextMovesOnAsAnAcceptedOneDoes) {
  for (const auto& [key, row] : {std::pair(keys::enter, 3), {keys::up, 1}, {keys::down, 3}}) {
    openEditor(2);
    field.userType("abc");
    field.userKey(key);
    expectCurrent(row, GRD_POZ_QTY_DESPATCHED);
  }
}

}  // namespace
}  // namespace awizo::test
