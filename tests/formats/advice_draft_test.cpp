#include "formats/advice_draft.h"

#include <gtest/gtest.h>

#include "session/record/header_fields.h"
#include "support/documents.h"
#include "support/test_editor.h"
#include "tables/columns/columns.h"

namespace awizo::test {
namespace {

struct ADraft : ::testing::Test {
  ADraft() {
    putPackages(test.editor, 2, [](int) { return 0; });
    putLines(test.editor, 2);
  }

  AdviceDraft draft() const { return draftOf(test.editor); }

  TestEditor test;
  AwizoForm& form = test.form;
};

void enter(TextField& field) { field.setText("7"); }
void enter(DatePicker& picker) { picker.setDate(makeDate(2031, 1, 2)); }
void enter(TimePicker& picker) { picker.setTime(TimeOfDay{3, 4, 0}); }
void enter(DropDownList& list) {
  list.addRow("7");
  list.setText("7");
}

TEST_F(ADraft, HasEveryFieldOfTheHeader) {
  const std::vector<HeaderField> fields = headerFields(form);
  for (std::size_t i = 0; i < fields.size(); ++i) {
    const AdviceDraft before = draft();
    std::visit([](auto* control) { enter(*control); }, fields[i].control);
    EXPECT_NE(draft(), before) << "field " << i;
  }
}

TEST_F(ADraft, HasEveryColumnOfALine) {
  for (const Column& column : lineColumns) {
    for (const int row : {1, 2}) {
      const AdviceDraft before = draft();
      form.grdPozycje.setCell(row, column.number, "9@9");
      EXPECT_NE(draft(), before) << row << ' ' << column.number;
    }
  }
}

TEST_F(ADraft, HasEveryColumnOfAPackageButThoseMadeOfOthers) {
  for (const Column& column : packageColumns) {
    if (column.number == GRD_OPAK_LP || column.number == GRD_OPAK_ID_LOW) continue;
    const AdviceDraft before = draft();
    form.grdOpakowania.setCell(2, column.number, "9");
    EXPECT_NE(draft(), before) << column.number;
  }
}

TEST_F(ADraft, HasOnlyWhatIsEntered) {
  const AdviceDraft before = draft();
  form.lblCurrencyWart.setCaption("EUR");
  form.lblILNKupWart.setCaption("1");
  form.lblILNSprzedWart.setCaption("2");
  form.DeliveryILN = "3";
  form.grdSuma.setCell(1, GRD_SUMA_NET_AMOUNT, "9,00");
  form.grdPozycje.setColumnWidth(GRD_POZ_NAME, 300);
  form.grdPozycje.setRow(2);
  EXPECT_EQ(draft(), before);
}

TEST_F(ADraft, HasTheTextOfAnOpenEditThatDiffersFromItsCell) {
  const AdviceDraft before = draft();
  form.txtEdycja.setText("7");
  EXPECT_EQ(draft(), before) << "it isn't open";
  form.txtEdycja.setText("");
  form.txtEdycja.setVisible(true);
  form.grdPozycje.setColumn(GRD_POZ_NAME);
  EXPECT_EQ(draft(), before);
  form.grdPozycje.setColumn(GRD_POZ_QTY_DESPATCHED);
  EXPECT_NE(draft(), before);
  form.txtEdycja.setText("1,000");
  EXPECT_EQ(draft(), before);
}

TEST_F(ADraft, HasEveryCellOfRowsThatAreTooManyForADocument) {
  putLines(test.editor, 1424);
  for (const Column& column : lineColumns) {
    const AdviceDraft before = draft();
    form.grdPozycje.setCell(1424, column.number, "9@9");
    EXPECT_NE(draft(), before) << column.number;
  }
  putPackages(test.editor, 2185, [](int) { return 0; });
  const AdviceDraft before = draft();
  form.grdOpakowania.setCell(2185, GRD_OPAK_DESC, "9");
  form.grdPozycje.setCell(1, GRD_POZ_NAME, "8");
  EXPECT_NE(draft(), before);
  test.session.LineCount = 1423;
  EXPECT_NE(draft(), before);
}

}  // namespace
}  // namespace awizo::test
