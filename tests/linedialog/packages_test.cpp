#include "line_packages.h"

namespace awizo::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

INSTANTIATE_TEST_SUITE_P(InBothLocales, LinePackages, ::testing::Values("ru_RU", "en_US"));

// Adding.

TEST_P(LinePackages, AddingOffersThePackagesAndAllThatIsFree) {
  despatch("5");
  test.show([&] {
    test.inQuantityDialog([&] {
      EXPECT_EQ(small.caption(), "Добавь товар в упаковку");
      EXPECT_EQ(small.btnDodaj.caption(), "&Добавить");
      EXPECT_THAT(small.cboxPackages.rows(), ElementsAre("Поддон", "Коробка"));
      EXPECT_EQ(small.cboxPackages.index(), 0);
      EXPECT_EQ(small.UpDown1.min(), 1);
      EXPECT_EQ(small.UpDown1.max(), 5);
      EXPECT_EQ(small.txtQuantity.text(), "5");
      small.btnDodaj.userClick();
    });
    dialog.Command1.userClick();
    EXPECT_EQ(test.focus(), "grdPozycje");
  });
  EXPECT_THAT(rows(), ElementsAre(row("2 Поддон 1 5,000")));
  EXPECT_EQ(dialog.lblPackedQuantityValue.caption(), local("5,000"));
  EXPECT_EQ(enabledButtons(), "-•");
  EXPECT_TRUE(table.redraw());
  EXPECT_THAT(test.face.boxes(), IsEmpty());
}

TEST_P(LinePackages, TheFirstAssignmentTakesTheEmptyRowAndOthersAreAdded) {
  despatch("5");
  test.show([&] {
    test.assign(0, "2");
    EXPECT_EQ(table.rows(), 2);
    EXPECT_EQ(table.row(), 1);
    test.assign(1, local("1,25"));
    EXPECT_EQ(table.row(), 2);
  });
  EXPECT_THAT(rows(), ElementsAre(row("2 Поддон 1 2,000"), row("5 Коробка 2 1,250")));
  EXPECT_EQ(table.cell(1, 0), "");
  EXPECT_EQ(table.cell(2, 0), "2") << "the number of rows before";
  EXPECT_EQ(dialog.lblPackedQuantityValue.caption(), local("3,250"));
  EXPECT_EQ(dialog.GridToString(), local("2@Поддон@1@2,000$5@Коробка@2@") + local("1,250"));
}

TEST_P(LinePackages, TheSamePackageTwiceIsTwoRows) {
  despatch("5");
  test.show([&] {
    test.assign(1, "2");
    test.assign(1, "3");
  });
  EXPECT_THAT(rows(), ElementsAre(row("5 Коробка 2 2,000"), row("5 Коробка 2 3,000")));
}

TEST_P(LinePackages, AClosedSmallDialogAddsNothing) {
  despatch("5");
  small.DlgResult = 1;
  test.show([&] {
    test.inQuantityDialog([&] { small.btnZamknij.userClick(); });
    dialog.Command1.userClick();
    EXPECT_EQ(test.focus(), "grdPozycje");
  });
  EXPECT_THAT(rows(), ElementsAre("   "));
  EXPECT_EQ(table.rows(), 2);
}

TEST_P(LinePackages, AHalfRoundsToTheEvenNumberAndShowsTheRangeFirst) {
  despatch("2,5");
  test.show([&] {
    test.inQuantityDialog([&] {
      EXPECT_THAT(test.takeBoxes(), ElementsAre(range("1", "2")));
      EXPECT_EQ(small.UpDown1.max(), 2);
      EXPECT_EQ(small.txtQuantity.text(), "2");
      small.btnDodaj.userClick();
    });
    dialog.Command1.userClick();
    EXPECT_EQ(enabledButtons(), "+-•") << "a half is left";

    test.inQuantityDialog([&] {
      // A half is offered as "1", and the largest quantity in its place is refused too.
      EXPECT_THAT(test.takeBoxes(), ElementsAre(range("1", "0"), range("1", "0")));
      EXPECT_EQ(small.UpDown1.max(), 0);
      EXPECT_EQ(small.txtQuantity.text(), "0");
      small.btnZamknij.userClick();
    });
    dialog.Command1.userClick();
  });
  EXPECT_THAT(rows(), ElementsAre(row("2 Поддон 1 2,000")));
}

TEST_P(LinePackages, AHalfAboveAnOddNumberRoundsUp) {
  despatch("3,5");
  test.show([&] {
    test.inQuantityDialog([&] {
      EXPECT_EQ(small.UpDown1.max(), 4);
      EXPECT_EQ(small.txtQuantity.text(), "4");
      small.btnZamknij.userClick();
    });
    dialog.Command1.userClick();
  });
  EXPECT_THAT(test.face.boxes(), IsEmpty());
}

TEST_P(LinePackages, ARemainderBelowAHalfFitsNowhere) {
  despatch("0,4");
  EXPECT_EQ(enabledButtons(), "+");
  test.show([&] {
    test.inQuantityDialog([&] {
      EXPECT_THAT(test.takeBoxes(), ElementsAre(range("1", "0")));
      small.txtQuantity.userType(local("0,4"));
      EXPECT_THAT(test.takeBoxes(), ElementsAre(range("1", "0"), range("1", "0")))
          << "the largest quantity is refused in its turn";
      EXPECT_EQ(small.txtQuantity.text(), "0");
      small.btnZamknij.userClick();
    });
    dialog.Command1.userClick();
  });
}

TEST_P(LinePackages, TheSameQuantityOfferedAgainIsCheckedAgain) {
  despatch("0,4");
  test.show([&] {
    for (int time = 1; time <= 2; ++time) {
      test.inQuantityDialog([&] {
        EXPECT_THAT(test.takeBoxes(), ElementsAre(range("1", "0"))) << time;
        EXPECT_EQ(small.txtQuantity.text(), "0");
        small.btnZamknij.userClick();
      });
      dialog.Command1.userClick();
    }
  });
}

TEST_P(LinePackages, AQuantityThatNoSpinButtonsHoldCantBePacked) {
  for (const char* quantity : {"9e99", "3e9"}) {
    dialog.txtIloscPotw.setText(quantity);
    test.show([&] { dialog.Command1.userClick(); });
    EXPECT_THAT(test.takeBoxes(), ElementsAre("VIRD|critical|OK|Overflow")) << quantity;
  }
  EXPECT_THAT(test.face.modalForms(), ElementsAre("DlgDodaj", "DlgDodaj"));
}

TEST_P(LinePackages, AddingAfterAChangeHasItsOwnCaptions) {
  despatch("6");
  test.show([&] {
    test.assign(0, "1");
    test.inQuantityDialog([&] { small.btnZamknij.userClick(); });
    dialog.Command3.userClick();
    test.inQuantityDialog([&] {
      EXPECT_EQ(small.caption(), "Добавь товар в упаковку");
      EXPECT_EQ(small.btnDodaj.caption(), "&Добавить");
      small.btnZamknij.userClick();
    });
    dialog.Command1.userClick();
  });
}

TEST_P(LinePackages, TheOnlyRowIsTakenWhenItsSerialIsEmptyWhateverElseItHolds) {
  dialog.StringToGrid("@Ящик@1");
  despatch("5");
  test.show([&] { test.assign(0, "2"); });
  EXPECT_THAT(rows(), ElementsAre(row("2 Поддон 1 2,000")));
}

TEST_P(LinePackages, TheTableIsntPaintedWhileARowIsWritten) {
  std::vector<bool> painting;
  despatch("5");
  test.show([&] {
    table.observer = [&](const Change& change) {
      if (change.aspect == Aspect::redraw) painting.push_back(table.redraw());
    };
    test.assign(0, "2");
    dialog.Command2.userClick();
    table.observer = nullptr;
  });
  EXPECT_THAT(painting, ElementsAre(false, true, false, true));
}

TEST_P(LinePackages, TheListIsFilledAnewEachTime) {
  despatch("5");
  test.show([&] {
    test.assign(1, "1");
    test.offer({{"9", "Ящик"}});
    test.inQuantityDialog([&] {
      EXPECT_THAT(small.cboxPackages.rows(), ElementsAre("Ящик"));
      EXPECT_EQ(small.cboxPackages.index(), 0);
      small.btnZamknij.userClick();
    });
    dialog.Command1.userClick();
  });
}

// Taking out.

TEST_P(LinePackages, TakingOutTheLastLeavesTheEmptyRow) {
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

TEST_P(LinePackages, TakingOutTakesTheCurrentRowWithoutAQuestion) {
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

TEST_P(LinePackages, TheHeadingCantBeTakenOut) {
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

TEST_P(LinePackages, ChangingOffersTheRowsOwnQuantityAsFree) {
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

TEST_P(LinePackages, ChangingTheOnlyRowNeedsNoCurrentRow) {
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

TEST_P(LinePackages, AClosedChangeStillSumsUp) {
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

TEST_P(LinePackages, ChangingFindsThePackageByItsDescription) {
  test.offer({{"2", "Коробка"}, {"3", "Коробка", 4}});
  despatch("6");
  test.show([&] {
    test.assign(1, "4");
    EXPECT_EQ(table.cell(1, 1), "3");
    // The small dialog still stands on the second of the two.
    small.cboxPackages.setIndex(0);
    test.inQuantityDialog([&] { small.btnDodaj.userClick(); });
    dialog.Command3.userClick();
  });
  EXPECT_EQ(table.cell(1, 1), "2") << "two packages of one description are the same";
}

// The list of packages is an earlier line's; those of the document have become fewer since.
TEST_P(LinePackages, APackageThatIsNoLongerThereCantBeAssigned) {
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

TEST_P(LinePackages, ChangingBeforeAnyAddingFails) {
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

TEST_P(LinePackages, AQuantityThatCantBeReadBreaksTheChange) {
  dialog.StringToGrid("2@Поддон@1@много");
  dialog.lblPackedQuantityValue.setCaption("1");
  despatch("6");
  test.show([&] { dialog.Command3.userClick(); });
  EXPECT_THAT(test.takeBoxes(), ElementsAre("VIRD|critical|OK|Type mismatch"));
  EXPECT_THAT(test.face.modalForms(), ElementsAre("DlgDodaj"));
}

TEST_P(LinePackages, AQuantityAboveWhatIsLeftIsBroughtDownBeforeTheDialogOpens) {
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

TEST_P(LinePackages, TheSumTakesEachRowAsItCanBeRead) {
  dialog.StringToGrid(local("2@a@1@1,5") + "$3@b@1@много$4@c@1$5@d@1@" + local("2,0004"));
  dialog.UpdatePackedQuantity();
  EXPECT_EQ(dialog.lblPackedQuantityValue.caption(), local("3,500"));
}

TEST_P(LinePackages, TheFlatIndexHasSixteenBits) {
  EXPECT_EQ(dialog.IndexGrdPozycje(1, 1), 6);
  EXPECT_EQ(dialog.IndexGrdPozycje(6553, 2), 32767);
  EXPECT_THROW(dialog.IndexGrdPozycje(6553, 3), RunTimeError);
  EXPECT_THROW(dialog.IndexGrdPozycje(6554, 0), RunTimeError);
}

TEST_P(LinePackages, ATextFillsTheTableAndComesBack) {
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

TEST_P(LinePackages, ATextOfTooManyAssignmentsEndsWithoutAWord) {
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
