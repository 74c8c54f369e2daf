#include "desk.h"

namespace awizo::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr const char* noNumber = "VIRD|exclamation|OK|Неправильная нумерическая величина.";

/// Three lines, of which 5 pieces each were ordered.
class InTableEditing : public ::testing::Test, public Desk {
 protected:
  explicit InTableEditing(const char* localeName = "ru_RU") : Desk(localeName) {
    putLines(3);
    for (int row = 1; row <= 3; ++row) {
      lines.setCell(row, GRD_POZ_QTY_ORDERED, editor.conversions.FormatFixed("5", 3));
      lines.setCell(row, GRD_POZ_QTY_DESPATCHED, editor.conversions.FormatFixed("1", 3));
      lines.setCell(row, GRD_POZ_NET_AMOUNT, editor.conversions.FormatFixed("2", 2));
    }
  }

  TextField& field = form.txtEdycja;

  void openEditor(int row) {
    lines.userCell(row, GRD_POZ_QTY_DESPATCHED);
    lines.userDoubleClick();
  }
  const std::string& quantity(int row) const { return lines.cell(row, GRD_POZ_QTY_DESPATCHED); }
  void expectCurrent(int row, int column) {
    EXPECT_EQ(lines.row(), row);
    EXPECT_EQ(lines.column(), column);
  }
};

struct InTableEditingInAPointLocale : InTableEditing {
  InTableEditingInAPointLocale() : InTableEditing("en_US") {}
};

TEST_F(InTableEditing, ADoubleClickOpensTheFieldOverTheCellWithItsText) {
  lines.move({100, 200, 5000, 3000});
  openEditor(2);
  EXPECT_TRUE(field.visible());
  EXPECT_EQ(form.focus(), &field);
  EXPECT_EQ(field.text(), "1,000");
  EXPECT_EQ(field.caret(), 5);
  EXPECT_EQ(session.EditRow, 2);
  // Behind the columns of 525, 1850 and 4625 twips, below the heading and the first line.
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

TEST_F(InTableEditing, AClickOnAnotherCellTakesTheTextIntoItsOwnCell) {
  openEditor(2);
  field.userType("2.5");
  lines.userCell(3, GRD_POZ_NAME);
  EXPECT_EQ(quantity(2), "2,500");
  EXPECT_EQ(lines.cell(3, GRD_POZ_NAME), "");
  EXPECT_EQ(lines.cell(3, GRD_POZ_QTY_DESPATCHED), "1,000");
  expectCurrent(3, GRD_POZ_NAME);
  EXPECT_FALSE(field.visible());
  EXPECT_EQ(totals.cell(1, GRD_SUMA_QTY_DESPATCHED), "4,500");
}

TEST_F(InTableEditing, AClickOnAnotherCellWithAnInvalidTextKeepsTheOldValue) {
  openEditor(2);
  field.userType("abc");
  lines.userCell(3, GRD_POZ_NAME);
  EXPECT_THAT(takeBoxes(), ElementsAre(noNumber));
  EXPECT_EQ(quantity(2), "1,000");
  expectCurrent(3, GRD_POZ_NAME);
  EXPECT_FALSE(field.visible());
}

TEST_F(InTableEditing, AFieldLeftForTheHeaderStaysOpenWithItsTidiedText) {
  openEditor(2);
  field.userType("7");
  form.txtNrAwiza.userFocus();
  EXPECT_EQ(form.focus(), &form.txtNrAwiza);
  EXPECT_TRUE(field.visible());
  EXPECT_EQ(field.text(), "5,000");
  EXPECT_EQ(quantity(2), "1,000");
  lines.userFocus();
  EXPECT_EQ(quantity(2), "5,000");
  EXPECT_FALSE(field.visible());
}

// A focus call by code skips the check of the text, but the text is tidied all the same.
TEST_F(InTableEditing, AFocusCallByCodeTidiesTheText) {
  openEditor(2);
  field.userType("7");
  form.txtNrAwiza.setFocus();
  EXPECT_EQ(field.text(), "5,000");
  openEditor(2);
  field.userType("abc");
  form.txtNrAwiza.setFocus();
  EXPECT_EQ(field.text(), "");
  EXPECT_TRUE(field.visible());
  EXPECT_THAT(takeBoxes(), IsEmpty());
}

TEST_F(InTableEditing, LeavingTheFieldForTheHeaderWithAnInvalidTextClosesIt) {
  openEditor(2);
  field.userType("abc");
  form.txtNrAwiza.userFocus();
  EXPECT_THAT(takeBoxes(), ElementsAre(noNumber));
  EXPECT_EQ(form.focus(), &form.txtNrAwiza);
  EXPECT_FALSE(field.visible());
  EXPECT_EQ(quantity(2), "1,000");
}

TEST_F(InTableEditing, AButtonClosesTheEditBeforeItsDialogOpens) {
  openEditor(2);
  field.userType("4");
  face.onModal([&](Form& shown) {
    EXPECT_EQ(quantity(2), "4,000");
    EXPECT_FALSE(field.visible());
    shown.userClose();
  });
  form.btnEdytuj.userClick();
  EXPECT_EQ(lineDialog.txtIloscPotw.text(), "4,000");
}

TEST_F(InTableEditing, EveryButtonThatOpensADialogClosesTheEdit) {
  addPackage({.description = "Поддон"});
  for (Button* button :
       {&form.btnDodaj, &form.btnEdytuj, &form.btnDodajOpak, &form.btnEdytujOpak}) {
    lines.setCell(2, GRD_POZ_QTY_DESPATCHED, "1,000");
    openEditor(2);
    field.userType("4");
    closeNextForm();
    button->userClick();
    EXPECT_EQ(quantity(2), "4,000") << button->name();
    EXPECT_FALSE(field.visible()) << button->name();
  }
}

// A picture takes no focus, so nothing tidies the text before it gets into the cell.
TEST_F(InTableEditing, APictureClosesTheEditWithTheTextAsTyped) {
  openEditor(2);
  field.userType("4.25");
  closeNextForm();
  form.btnWczytaj.userClick();
  EXPECT_EQ(quantity(2), "4.25");
  EXPECT_FALSE(field.visible());
}

TEST_F(InTableEditing, MovingTheCellByCodeClosesTheEdit) {
  openEditor(2);
  field.userType("4");
  lines.setRow(3);
  EXPECT_EQ(quantity(2), "4");
  EXPECT_FALSE(field.visible());
}

TEST_F(InTableEditing, ScrollingKeepsTheFieldOverTheCell) {
  putLines(40);
  lines.move({0, 0, 5000, 3000});
  openEditor(5);
  lines.userScroll(3);
  EXPECT_EQ(field.place()->y, (1 + 2) * 240);
  // The cell is brought back into view.
  lines.userScroll(20);
  EXPECT_EQ(lines.topRow(), 5);
  EXPECT_EQ(field.place()->y, 240);
  EXPECT_TRUE(field.visible());
}

TEST_F(InTableEditing, ScrollingMovesNothingWhenNoEditIsOpen) {
  putLines(40);
  const auto before = field.place();
  lines.userScroll(20);
  EXPECT_EQ(field.place(), before);
  EXPECT_EQ(lines.topRow(), 20);
}

TEST_F(InTableEditing, AnEditMakesARepairedLineWhiteAndCountsIt) {
  lines.setCell(2, GRD_POZ_QTY_DESPATCHED, "many");
  for (int column = 1; column <= 21; ++column) lines.setBackground(2, column, pink);
  openEditor(2);
  field.userType("2");
  field.userKey(keys::enter);
  for (int column = 1; column <= 21; ++column) EXPECT_EQ(lines.look(2, column).background, white);
  EXPECT_EQ(form.ValidLineCount, 3);
}

TEST_F(InTableEditing, AnEditLeavesAFaultyLinePink) {
  lines.setCell(2, GRD_POZ_EAN, "ABC");
  lines.setBackground(2, 1, pink);
  openEditor(2);
  field.userType("2");
  field.userKey(keys::enter);
  EXPECT_EQ(lines.look(2, 1).background, pink);
  EXPECT_EQ(form.ValidLineCount, 2);
}

TEST_F(InTableEditing, TheTextStaysUntilTheNextOpening) {
  openEditor(2);
  field.userType("4");
  field.userKey(keys::enter);
  EXPECT_EQ(field.text(), "4,000");
  openEditor(1);
  EXPECT_EQ(field.text(), "1,000");
}

TEST_F(InTableEditing, AnErrorAtAKeyIsTold) {
  openEditor(2);
  field.userType("4");
  session.EditRow = 1425;
  field.userKey(keys::enter);
  EXPECT_THAT(takeBoxes(), ElementsAre("Произошла ошибка в EditKeyCode()|critical|OK|Overflow"));
  EXPECT_TRUE(field.visible());
  EXPECT_EQ(field.text(), "4");
}

TEST_F(InTableEditingInAPointLocale, BothSeparatorsAreTaken) {
  for (const char* typed : {"2.5", "2,5"}) {
    openEditor(2);
    field.userType(typed);
    field.userKey(keys::enter);
    EXPECT_EQ(quantity(2), "2.500");
  }
  openEditor(2);
  field.userType("7,25");
  field.userKey(keys::enter);
  EXPECT_EQ(quantity(2), "5.000");
  EXPECT_THAT(takeBoxes(), IsEmpty());
}

}  // namespace
}  // namespace awizo::test
