#include "packed_line.h"

namespace awizo::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

INSTANTIATE_TEST_SUITE_P(InBothLocales, PackedLine, ::testing::Values("ru_RU", "en_US"));

// Adding.

TEST_P(PackedLine, AddingOffersThePackagesAndAllThatIsFree) {
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

TEST_P(PackedLine, TheFirstAssignmentTakesTheEmptyRowAndOthersAreAdded) {
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

TEST_P(PackedLine, TheSamePackageTwiceIsTwoRows) {
  despatch("5");
  test.show([&] {
    test.assign(1, "2");
    test.assign(1, "3");
  });
  EXPECT_THAT(rows(), ElementsAre(row("5 Коробка 2 2,000"), row("5 Коробка 2 3,000")));
}

TEST_P(PackedLine, AClosedSmallDialogAddsNothing) {
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

TEST_P(PackedLine, AHalfRoundsToTheEvenNumberAndShowsTheRangeFirst) {
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

TEST_P(PackedLine, AHalfAboveAnOddNumberRoundsUp) {
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

TEST_P(PackedLine, ARemainderBelowAHalfFitsNowhere) {
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

TEST_P(PackedLine, TheSameQuantityOfferedAgainIsCheckedAgain) {
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

TEST_P(PackedLine, AQuantityThatNoSpinButtonsHoldCantBePacked) {
  for (const char* quantity : {"9e99", "3e9"}) {
    dialog.txtIloscPotw.setText(quantity);
    test.show([&] { dialog.Command1.userClick(); });
    EXPECT_THAT(test.takeBoxes(), ElementsAre("VIRD|critical|OK|Overflow")) << quantity;
  }
  EXPECT_THAT(test.face.modalForms(), ElementsAre("DlgDodaj", "DlgDodaj"));
}

TEST_P(PackedLine, AddingAfterAChangeHasItsOwnCaptions) {
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

TEST_P(PackedLine, TheOnlyRowIsTakenWhenItsSerialIsEmptyWhateverElseItHolds) {
  dialog.StringToGrid("@Ящик@1");
  despatch("5");
  test.show([&] { test.assign(0, "2"); });
  EXPECT_THAT(rows(), ElementsAre(row("2 Поддон 1 2,000")));
}

TEST_P(PackedLine, TheTableIsntPaintedWhileARowIsWritten) {
  std::vector<bool> painting;
  despatch("5");
  test.show([&] {
    const int watching = table.observers.add([&](const Change& change) {
      if (change.aspect == Aspect::redraw) painting.push_back(table.redraw());
    });
    test.assign(0, "2");
    dialog.Command2.userClick();
    table.observers.remove(watching);
  });
  EXPECT_THAT(painting, ElementsAre(false, true, false, true));
}

TEST_P(PackedLine, TheListIsFilledAnewEachTime) {
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

}  // namespace
}  // namespace awizo::test
