#include "in_table_editing.h"

namespace awizo::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

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

/// A focus call by code skips the check of the text, but the text is tidied all the same.
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

/// A picture takes no focus, so nothing tidies the text before it gets into the cell.
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
