#include "in_table_editing.h"
#include "tables/upper/editing/in_table_editing.h"

namespace awizo::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// The procedures of in-table editing, called as code calls them.
class EditProcedures : public ::testing::Test, public Desk {
 protected:
  EditProcedures() {
    putLines(3);
    lines.setRow(2);
    lines.setColumn(GRD_POZ_QTY_DESPATCHED);
  }

  TextField& field = form.txtEdycja;
};

TEST_F(EditProcedures, EditGridCellTypesACharacterOverTheText) {
  EditGridCell(lines, field, '7');
  EXPECT_EQ(field.text(), "7");
  EXPECT_EQ(field.caret(), 1);
  EXPECT_TRUE(field.visible());
}

TEST_F(EditProcedures, EditGridCellTypesTheCharacterOfANegativeCodeToo) {
  EditGridCell(lines, field, -1000);
  EXPECT_EQ(field.text(), "\uFC18");
  EXPECT_EQ(field.caret(), 1);
}

TEST_F(EditProcedures, EditGridCellTakesTheTextOverForKeysWithoutACharacter) {
  for (const std::int16_t key : {std::int16_t{0}, std::int16_t{13}, std::int16_t{32}}) {
    EditGridCell(lines, field, key);
    EXPECT_EQ(field.text(), "1,000");
  }
}

TEST_F(EditProcedures, EditGridCellServesAnyPair) {
  totals.setRow(1);
  totals.setCell(1, 0, "12");
  totals.setColumn(0);
  EditGridCell(totals, form.txtEdycjaSuma, 32);
  EXPECT_EQ(form.txtEdycjaSuma.text(), "12");
  EXPECT_EQ(form.focus(), &form.txtEdycjaSuma);
}

TEST_F(EditProcedures, ClampQuantityHoldsANumberBetweenNoneAndTheOrder) {
  session.EditRow = 1;
  lines.setCell(1, GRD_POZ_QTY_ORDERED, "5,250");
  EXPECT_EQ(ClampQuantity(editor, "5.25"), "5,250");
  EXPECT_EQ(ClampQuantity(editor, "5,2504"), "5,250");
  EXPECT_EQ(ClampQuantity(editor, "5,2506"), "5,250");
  EXPECT_EQ(ClampQuantity(editor, "1000000"), "5,250");
  EXPECT_EQ(ClampQuantity(editor, "-0,0001"), "-0,000");
  EXPECT_EQ(ClampQuantity(editor, "-1"), "0,000");
  EXPECT_EQ(ClampQuantity(editor, "0"), "0,000");
  EXPECT_EQ(ClampQuantity(editor, "x"), "");
  EXPECT_EQ(ClampQuantity(editor, ""), "");
}

TEST_F(EditProcedures, CheckNumberWarnsOfWhatIsNone) {
  EXPECT_TRUE(CheckNumber(editor, "1,5"));
  EXPECT_THAT(takeBoxes(), IsEmpty());
  EXPECT_FALSE(CheckNumber(editor, "x"));
  EXPECT_FALSE(CheckNumber(editor, ""));
  EXPECT_FALSE(CheckNumber(editor, "1.5"));
  EXPECT_THAT(takeBoxes(), ElementsAre(noNumber, noNumber, noNumber));
}

TEST_F(EditProcedures, EnterIsSwallowedInTheField) {
  std::int16_t code = 13;
  txtEdycja_KeyPress(code);
  EXPECT_EQ(code, 0);
  code = '7';
  txtEdycja_KeyPress(code);
  EXPECT_EQ(code, '7');
}

TEST_F(EditProcedures, TheTotalsEditorIsClosedByTheLinesFocusAndByItsOwnCell) {
  form.txtEdycjaSuma.setVisible(true);
  form.txtEdycjaSuma.setText("9");
  totals.setRow(1);
  totals.setColumn(2);
  EXPECT_EQ(totals.cell(1, 0), "9");
  EXPECT_FALSE(form.txtEdycjaSuma.visible());
  form.txtEdycjaSuma.setVisible(true);
  form.txtEdycjaSuma.setText("8");
  form.txtNrAwiza.userFocus();
  lines.userFocus();
  EXPECT_EQ(totals.cell(1, 2), "8");
  EXPECT_FALSE(form.txtEdycjaSuma.visible());
}

/// The lines' focus closes the totals' editor first, then that of the lines.
TEST_F(EditProcedures, TheTotalsEditorIsClosedBeforeThatOfTheLines) {
  std::vector<std::string> closed;
  for (TextField* editField : {&form.txtEdycja, &form.txtEdycjaSuma}) {
    editField->setText("1");
    editField->setVisible(true);
    editField->observers.add([&closed, editField](const Change& change) {
      if (change.aspect == Aspect::visible) closed.push_back(editField->name());
    });
  }
  form.txtNrAwiza.userFocus();
  lines.userFocus();
  EXPECT_THAT(closed, ElementsAre("txtEdycjaSuma", "txtEdycja"));
}

TEST_F(EditProcedures, EveryButtonOfLinesAndPackagesClosesTheTotalsEditor) {
  addPackage({.description = "Поддон"});
  for (Button* button : {&form.btnDodaj, &form.btnEdytuj, &form.btnUsun, &form.btnDodajOpak,
                         &form.btnEdytujOpak, &form.btnUsunOpak}) {
    form.txtEdycjaSuma.setVisible(true);
    if (button != &form.btnUsun && button != &form.btnUsunOpak) closeNextForm();
    button->userClick();
    EXPECT_FALSE(form.txtEdycjaSuma.visible()) << button->name();
  }
}

}  // namespace
}  // namespace awizo::test
