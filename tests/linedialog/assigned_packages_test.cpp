#include "packed_line.h"

namespace awizo::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// Packages that the line lies in already are taken out or changed.
class AssignedLinePackages : public PackedLine {};

INSTANTIATE_TEST_SUITE_P(InBothLocales, AssignedLinePackages, ::testing::Values("ru_RU", "en_US"));

// Taking out.

TEST_P(AssignedLinePackages, TakingOutTheLastLeavesTheEmptyRow) {
  despatch("5");
  test.show([&] {
    test.assign(0, "5");
    dialog.Command2.userClick();
    EXPECT_EQ(test.focus(), "grdPozycje");
  });
  EXPECT_THAT(rows(), ElementsAre("   "));
  EXPECT_THAT(TestEditor::row(table, 0),
              ElementsAre("№ п.п", "ID упаковки", "Описание упаковки", "Уровень", "Количество"));
  for (int column = 0; column < 5; ++column) {
    EXPECT_TRUE(table.look(0, column).bold);
    EXPECT_EQ(table.look(0, column).alignment, Alignment::centre);
  }
  EXPECT_EQ(dialog.lblPackedQuantityValue.caption(), local("0,000"));
  EXPECT_EQ(enabledButtons(), "+");
  EXPECT_TRUE(table.redraw());
  EXPECT_EQ(dialog.GridToString(), "");
}

TEST_P(AssignedLinePackages, TakingOutTakesTheCurrentRowWithoutAQuestion) {
  despatch("6");
  test.show([&] {
    test.assign(0, "1");
    test.assign(1, "2");
    test.assign(0, "3");
    table.userCell(2, 2);
    dialog.Command2.userClick();
  });
  EXPECT_THAT(rows(), ElementsAre(row("2 Поддон 1 1,000"), row("2 Поддон 1 3,000")));
  EXPECT_EQ(table.cell(2, 0), "3") << "the hidden number isn't counted anew";
  EXPECT_EQ(dialog.lblPackedQuantityValue.caption(), local("4,000"));
  EXPECT_EQ(enabledButtons(), "+-•");
  EXPECT_THAT(test.face.boxes(), IsEmpty());
}

TEST_P(AssignedLinePackages, TheHeadingCantBeTakenOut) {
  dialog.StringToGrid(local("2@Поддон@1@1,000$5@Коробка@2@1"));
  dialog.UpdatePackedQuantity();
  despatch("6");
  table.setRow(0);
  test.show([&] { dialog.Command2.userClick(); });
  EXPECT_THAT(test.takeBoxes(),
              ElementsAre("VIRD|critical|OK|Cannot do a RemoveItem on a fixed row"));
  EXPECT_EQ(table.rows(), 3);
  EXPECT_FALSE(table.redraw()) << "nothing is undone";
}

// Changing.

TEST_P(AssignedLinePackages, ChangingOffersTheRowsOwnQuantityAsFree) {
  despatch("6");
  test.show([&] {
    test.assign(0, "4");
    test.assign(1, "1");
    table.userCell(1, 2);
    test.inQuantityDialog([&] {
      EXPECT_EQ(small.caption(), "Изменить упаковку, к которой приписан товар");
      EXPECT_EQ(small.btnDodaj.caption(), "&Подтвердить");
      EXPECT_EQ(small.UpDown1.min(), 1);
      EXPECT_EQ(small.UpDown1.max(), 5);
      EXPECT_EQ(small.txtQuantity.text(), "4");
      EXPECT_EQ(small.cboxPackages.text(), "Поддон");
      small.cboxPackages.userChoose(1);
      small.txtQuantity.userType("5");
      small.btnDodaj.userClick();
    });
    dialog.Command3.userClick();
  });
  EXPECT_THAT(rows(), ElementsAre(row("5 Коробка 2 5,000"), row("5 Коробка 2 1,000")));
  EXPECT_EQ(table.row(), 1);
  EXPECT_EQ(dialog.lblPackedQuantityValue.caption(), local("6,000"));
  EXPECT_EQ(enabledButtons(), "-•");
}

TEST_P(AssignedLinePackages, ChangingTheOnlyRowNeedsNoCurrentRow) {
  despatch("6");
  test.show([&] {
    test.assign(0, local("1,5"));
    table.setRow(0);
    test.inQuantityDialog([&] {
      EXPECT_EQ(small.txtQuantity.text(), local("1,5"));
      small.txtQuantity.userType("2");
      small.btnDodaj.userClick();
    });
    dialog.Command3.userClick();
  });
  EXPECT_THAT(rows(), ElementsAre(row("2 Поддон 1 2,000")));
  EXPECT_EQ(table.row(), 1);
}

TEST_P(AssignedLinePackages, AClosedChangeStillSumsUp) {
  despatch("6");
  test.show([&] {
    test.assign(0, "4");
    dialog.lblPackedQuantityValue.setCaption("");
    test.inQuantityDialog([&] { small.btnZamknij.userClick(); });
    dialog.Command3.userClick();
  });
  EXPECT_THAT(rows(), ElementsAre(row("2 Поддон 1 4,000")));
  EXPECT_EQ(dialog.lblPackedQuantityValue.caption(), local("4,000"));
}

TEST_P(AssignedLinePackages, ChangingFindsThePackageByItsDescription) {
  test.offer({{"2", "Коробка"}, {"3", "Коробка", 4}});
  despatch("6");
  test.show([&] {
    test.assign(1, "4");
    EXPECT_EQ(table.cell(1, 1), "3");
    // The small dialog is still on the second of the two.
    small.cboxPackages.setIndex(0);
    test.inQuantityDialog([&] { small.btnDodaj.userClick(); });
    dialog.Command3.userClick();
  });
  EXPECT_EQ(table.cell(1, 1), "2") << "two packages of one description are the same";
}

/// The list of packages is an earlier line's; those of the document have become fewer since.
TEST_P(AssignedLinePackages, APackageThatIsNoLongerThereCantBeAssigned) {
  test.offer({{"2", "Поддон"}, {"5", "Коробка"}, {"6", "Ящик"}});
  despatch("6");
  test.show([&] {
    test.assign(2, "4");
    test.offer({{"2", "Поддон"}});
    test.inQuantityDialog([&] { small.btnDodaj.userClick(); });
    dialog.Command3.userClick();
  });
  EXPECT_THAT(test.takeBoxes(), ElementsAre("VIRD|critical|OK|Subscript out of range"));
  EXPECT_THAT(rows(), ElementsAre(row("6 Ящик 1 4,000")));
}

TEST_P(AssignedLinePackages, ChangingBeforeAnyAddingFails) {
  dialog.StringToGrid(local("2@Поддон@1@2,000"));
  dialog.UpdatePackedQuantity();
  despatch("6");
  test.show([&] { dialog.Command3.userClick(); });
  EXPECT_THAT(test.takeBoxes(),
              ElementsAre("VIRD|critical|OK|Could not set the Value property. Invalid property "
                          "value."));
  EXPECT_THAT(test.face.modalForms(), ElementsAre("DlgDodaj"));
  EXPECT_THAT(rows(), ElementsAre(row("2 Поддон 1 2,000")));
  EXPECT_EQ(small.UpDown1.min(), 1) << "what was done stays";
  EXPECT_EQ(small.UpDown1.max(), 6);
}

TEST_P(AssignedLinePackages, AQuantityThatCantBeReadBreaksTheChange) {
  dialog.StringToGrid("2@Поддон@1@много");
  dialog.lblPackedQuantityValue.setCaption("1");
  despatch("6");
  test.show([&] { dialog.Command3.userClick(); });
  EXPECT_THAT(test.takeBoxes(), ElementsAre("VIRD|critical|OK|Type mismatch"));
  EXPECT_THAT(test.face.modalForms(), ElementsAre("DlgDodaj"));
}

TEST_P(AssignedLinePackages, AQuantityAboveWhatIsLeftIsBroughtDownBeforeTheDialogOpens) {
  despatch("6");
  test.show([&] {
    test.assign(0, "6");
    despatch("4");
    test.inQuantityDialog([&] {
      EXPECT_THAT(test.takeBoxes(), ElementsAre(range("1", "4")));
      EXPECT_EQ(small.txtQuantity.text(), "4");
      small.btnDodaj.userClick();
    });
    // The small dialog's field holds "6" still; another text is set first by the user.
    small.txtQuantity.setText("");
    dialog.Command3.userClick();
  });
  EXPECT_THAT(rows(), ElementsAre(row("2 Поддон 1 4,000")));
}

// The table.

TEST_P(AssignedLinePackages, TheSumTakesEachRowAsItCanBeRead) {
  dialog.StringToGrid(local("2@a@1@1,5") + "$3@b@1@много$4@c@1$5@d@1@" + local("2,0004"));
  dialog.UpdatePackedQuantity();
  EXPECT_EQ(dialog.lblPackedQuantityValue.caption(), local("3,500"));
}

TEST_P(AssignedLinePackages, TheFlatIndexHasSixteenBits) {
  EXPECT_EQ(dialog.IndexGrdPozycje(1, 1), 6);
  EXPECT_EQ(dialog.IndexGrdPozycje(6553, 2), 32767);
  EXPECT_THROW(dialog.IndexGrdPozycje(6553, 3), RunTimeError);
  EXPECT_THROW(dialog.IndexGrdPozycje(6554, 0), RunTimeError);
}

TEST_P(AssignedLinePackages, ATextFillsTheTableAndComesBack) {
  const std::string text = local("2@Поддон@1@5,000") + "$" + local("5@Коробка@2@1,000");
  dialog.StringToGrid(text);
  EXPECT_THAT(rows(), ElementsAre(row("2 Поддон 1 5,000"), row("5 Коробка 2 1,000")));
  EXPECT_EQ(dialog.GridToString(), text);
  dialog.StringToGrid("2");
  EXPECT_THAT(rows(), ElementsAre("2   "));
  EXPECT_EQ(dialog.GridToString(), "2@@@");
  dialog.StringToGrid("2@a@1@3@more@still more");
  EXPECT_EQ(dialog.GridToString(), "2@a@1@3");
  dialog.StringToGrid("");
  EXPECT_THAT(rows(), ElementsAre("   "));
  EXPECT_EQ(table.cell(0, 4), "Количество");
  EXPECT_EQ(dialog.GridToString(), "");
}

TEST_P(AssignedLinePackages, ATextOfTooManyAssignmentsEndsWithoutAWord) {
  std::string text = "2@a@1@1";
  for (int i = 1; i < 7000; ++i) text += "$2@a@1@1";
  dialog.StringToGrid(text);
  EXPECT_EQ(table.cell(6552, 4), "1");
  EXPECT_EQ(table.cell(6553, 3), "");
  dialog.GridToString();
  EXPECT_THAT(test.face.boxes(), IsEmpty());
}

}  // namespace
}  // namespace awizo::test
