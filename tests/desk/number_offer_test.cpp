#include "desk/number_offer.h"

#include <gmock/gmock.h>

#include "desk/number_range_dialog.h"
#include "numbers/store_in_memory.h"
#include "support/control/desk.h"

namespace awizo::test {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

/// A firm with a range, and a user who adds packages.
class NumberOfferTest : public ::testing::Test, public Desk {
 protected:
  NumberOfferTest() {
    numbers.setRange(range);
    form.txtNrAwiza.setText("ТН-6");
  }

  std::string number(std::uint64_t serial) const { return containerNumber(range, serial); }

  /// Opens the dialog for a new package; the user goes on with this.
  void adding(const std::function<void()>& act) {
    face.onModal([&, this] {
      offer.opened();
      act();
    });
    form.btnDodajOpak.userClick();
    offer.closed();
  }
  void add(const std::string& description) {
    adding([&, this] {
      packageDialog.txtPackageDesc.userType(description);
      packageDialog.cboxILNLokalizacji.userType("9520002001023");
      packageDialog.btnDodaj.userClick();
    });
  }
  void leave() { packageDialog.btnZamknij.userClick(); }
  std::string serialOf(int row) const { return packages.cell(row, GRD_OPAK_SERIAL_NUMBER); }

  const NumberRange range{"3", "9520001", 1, 20, 1};
  StoreInMemory store;
  GivenNumbers numbers{store, clock};
  NumberOffer offer{numbers, editor, packageDialog};
};

TEST_F(NumberOfferTest, ANewPackageHasTheNextNumberAsIfTyped) {
  adding([this] {
    EXPECT_EQ(packageDialog.txtSerialNumberN.text(), number(1));
    EXPECT_NE(packageDialog.focus(), &packageDialog.txtSerialNumberN)
        << "the user begins where he would have begun";
    EXPECT_EQ(offer.words(), "осталось номеров: 19");
    leave();
  });
  EXPECT_THAT(takeBoxes(), IsEmpty());
}

TEST_F(NumberOfferTest, AnAcceptedNumberIsSpentAndALeftOneIsOfferedAgain) {
  adding([this] { leave(); });
  add("Коробка 1");
  EXPECT_EQ(serialOf(1), number(1)) << "it was shown before and not accepted";
  add("Коробка 2");
  EXPECT_EQ(serialOf(2), number(2));
  form.btnUsunOpak.userClick();
  add("Коробка 3");
  EXPECT_EQ(serialOf(2), number(3)) << "one taken back isn't used again";
}

TEST_F(NumberOfferTest, OneThatIsShownIsNotOfferedByAnotherProgram) {
  GivenNumbers othersNumbers{store, clock};
  Desk other;
  NumberOffer othersOffer{othersNumbers, other.editor, other.packageDialog};
  adding([&, this] {
    EXPECT_EQ(packageDialog.txtSerialNumberN.text(), number(1));
    other.face.onModal([&] {
      othersOffer.opened();
      EXPECT_EQ(other.packageDialog.txtSerialNumberN.text(), number(2));
      other.packageDialog.btnZamknij.userClick();
    });
    other.form.btnDodajOpak.userClick();
    othersOffer.closed();
    leave();
  });
  adding([&, this] {
    EXPECT_EQ(packageDialog.txtSerialNumberN.text(), number(1)) << "it is still this one's";
    leave();
  });
}

TEST_F(NumberOfferTest, AChangedPackageKeepsItsNumber) {
  add("Коробка 1");
  face.onModal([this] {
    offer.opened();
    EXPECT_EQ(packageDialog.txtSerialNumberN.text(), number(1));
    leave();
  });
  form.btnEdytujOpak.userClick();
  offer.closed();
  EXPECT_EQ(numbers.range()->next, 2U);
}

TEST_F(NumberOfferTest, TheUsersOwnNumberStandsAndTheOfferedOneWaits) {
  adding([this] {
    packageDialog.txtSerialNumberN.userType(number(2));
    packageDialog.txtPackageDesc.userType("Коробка 1");
    packageDialog.cboxILNLokalizacji.userType("9520002001023");
    packageDialog.btnDodaj.userClick();
  });
  add("Коробка 2");
  add("Коробка 3");
  EXPECT_EQ(serialOf(1), number(2));
  EXPECT_EQ(serialOf(2), number(1));
  EXPECT_EQ(serialOf(3), number(3)) << "the document has the second already";
}

TEST_F(NumberOfferTest, ANumberOfAnotherRangeWaitsNoLonger) {
  adding([this] {
    EXPECT_EQ(packageDialog.txtSerialNumberN.text(), number(1));
    leave();
  });
  const NumberRange others{"0", "4600001", 5, 9, 5};
  numbers.setRange(others);
  adding([&, this] {
    EXPECT_EQ(packageDialog.txtSerialNumberN.text(), containerNumber(others, 5));
    leave();
  });
  numbers.setRange({"0", "4600001", 7, 9, 7});
  EXPECT_EQ(offer.wordsFor(4), "Номеров не хватит: осталось 3.");
  adding([&, this] {
    EXPECT_EQ(packageDialog.txtSerialNumberN.text(), containerNumber(others, 7));
    leave();
  });
}

TEST_F(NumberOfferTest, WhatAnotherPlaceHasIsNotAmongThoseLeft) {
  numbers.handOut(10, "Склад 2");
  numbers.setRange({"3", "9520001", 1, 25, 1});
  EXPECT_EQ(offer.wordsFor(16), "Номеров не хватит: осталось 15.");
  adding([this] {
    EXPECT_EQ(offer.words(), "осталось номеров: 14");
    leave();
  });
  numbers.take(99, "А");
  offer.prepare(1);
  add("Коробка 1");
  adding([this] {
    EXPECT_THAT(offer.words(), HasSubstr("Номера кончились"));
    leave();
  });
}

TEST_F(NumberOfferTest, WithoutARangeNothingIsTypedOrKept) {
  store.texts.clear();
  adding([this] {
    EXPECT_EQ(packageDialog.txtSerialNumberN.text(), "");
    EXPECT_EQ(offer.words(), "");
    leave();
  });
  offer.documentKept();
  EXPECT_THAT(store.texts, IsEmpty());
}

TEST_F(NumberOfferTest, WhereNoneIsGivenForLackOfARangeTheUserIsToldOnce) {
  store.texts.clear();
  offer.noRangeWords = "Впишите часть.";
  // An assistant's packages come and go unseen.
  adding([this] { leave(); });
  adding([this] {
    EXPECT_TRUE(offer.asksForRange());
    EXPECT_EQ(offer.words(), "Впишите часть.");
    packageDialog.txtSerialNumberN.userType("1");
    EXPECT_EQ(offer.words(), "") << "the user has a number";
    packageDialog.txtSerialNumberN.userType("");
    EXPECT_EQ(offer.words(), "Впишите часть.");
    offer.rangeShown();
    EXPECT_EQ(offer.words(), "Впишите часть.") << "nothing was entered";
    leave();
  });
  EXPECT_FALSE(offer.asksForRange());
  adding([this] {
    EXPECT_FALSE(offer.asksForRange());
    EXPECT_EQ(offer.words(), "");
    leave();
  });
}

TEST_F(NumberOfferTest, ARangeEnteredOverThePackageGivesItItsNumber) {
  store.texts.clear();
  offer.noRangeWords = "Впишите часть.";
  adding([this] {
    numbers.setRange(range);
    offer.rangeShown();
    EXPECT_EQ(packageDialog.txtSerialNumberN.text(), number(1));
    EXPECT_FALSE(offer.asksForRange());
    EXPECT_EQ(offer.words(), "осталось номеров: 19");
    leave();
  });
}

TEST_F(NumberOfferTest, WhoHasARangeIsAskedForNone) {
  offer.noRangeWords = "Впишите часть.";
  numbers.take(20, "А");
  adding([this] {
    EXPECT_FALSE(offer.asksForRange());
    EXPECT_THAT(offer.words(), HasSubstr("Номера кончились"));
    leave();
  });
}

TEST_F(NumberOfferTest, TellsOfTheEnd) {
  numbers.take(20, "А");
  adding([this] {
    EXPECT_EQ(packageDialog.txtSerialNumberN.text(), "");
    EXPECT_THAT(offer.words(), HasSubstr("Номера кончились"));
    leave();
  });
}

TEST_F(NumberOfferTest, TellsOfNumbersThatAnotherDocumentHas) {
  numbers.noteUse({number(7)}, "ТН-5");
  adding([this] {
    packageDialog.txtSerialNumberN.userType(number(7));
    EXPECT_EQ(offer.words(), "Этот номер уже был 21.11.2026 в документе ТН-5.");
    packageDialog.txtPackageDesc.userType("Коробка 1");
    packageDialog.cboxILNLokalizacji.userType("9520002001023");
    packageDialog.btnDodaj.userClick();
  });
  EXPECT_EQ(serialOf(1), number(7)) << "it hinders nothing";
  const std::vector<DocumentFault> faults = offer.faults();
  ASSERT_EQ(faults.size(), 1U);
  EXPECT_EQ(faults[0].where, "Упаковка 1");
  EXPECT_EQ(faults[0].place, &packages);
}

TEST_F(NumberOfferTest, AKeptDocumentsNumbersAreOnRecord) {
  add("Коробка 1");
  offer.documentKept();
  EXPECT_FALSE(numbers.useElsewhere(number(1), "ТН-6"));
  EXPECT_TRUE(numbers.useElsewhere(number(1), "ТН-7"));
}

TEST_F(NumberOfferTest, AFullDiskGivesNoNumberAndHindersNothing) {
  store.isFull = true;
  adding([this] {
    EXPECT_EQ(packageDialog.txtSerialNumberN.text(), "");
    EXPECT_EQ(offer.words(), "Номер не выдан: диск полон.");
    leave();
  });
}

class NumberRangeDialogTest : public NumberOfferTest {
 protected:
  void shown(const std::function<void()>& act) {
    face.onModal([&, this] {
      act();
      if (dialog.shown()) dialog.btnClose.userClick();
    });
    dialog.show("9520001000010");
  }

  NumberRangeDialog dialog{screen, numbers};
};

TEST_F(NumberRangeDialogTest, ShowsAndKeepsTheRange) {
  shown([this] {
    EXPECT_EQ(dialog.txtPrefix.text(), "9520001");
    EXPECT_EQ(dialog.lblExample.caption(), "Следующий номер: " + number(1));
    EXPECT_EQ(dialog.lblLeft.caption(), "осталось номеров: 20");
    EXPECT_EQ(dialog.lblDoubt.caption(), "");
    dialog.txtLast.userType("500");
    dialog.txtNext.userType("100");
    dialog.btnSave.userClick();
    EXPECT_FALSE(dialog.shown());
  });
  EXPECT_EQ(numbers.range(), (NumberRange{"3", "9520001", 1, 500, 100}));
}

TEST_F(NumberRangeDialogTest, WhatOthersTookMeanwhileIsNotTakenBack) {
  shown([this] {
    numbers.take(5, "ТН-5");
    dialog.txtLast.userType("30");
    dialog.btnSave.userClick();
  });
  EXPECT_EQ(numbers.range(), (NumberRange{"3", "9520001", 1, 30, 6}));
  shown([this] {
    numbers.take(5, "ТН-5");
    dialog.txtLast.userType("8");
    dialog.btnSave.userClick();
  });
  EXPECT_EQ(numbers.range(), (NumberRange{"3", "9520001", 1, 8, 9})) << "all of it is given";
}

TEST_F(NumberRangeDialogTest, ANextOneThatTheUserTypedStands) {
  numbers.take(5, "ТН-5");
  shown([this] {
    EXPECT_EQ(dialog.lblDoubt.caption(), "");
    dialog.txtNext.userType("3");
    EXPECT_EQ(dialog.lblDoubt.caption(), "Номера, которые уже выданы, будут пропущены.");
    numbers.take(1, "ТН-5");
    dialog.btnSave.userClick();
  });
  EXPECT_EQ(numbers.range()->next, 3U);
  EXPECT_THAT(numbers.take(1, "ТН-6"), ElementsAre(number(7)));
}

TEST_F(NumberRangeDialogTest, AnotherPrefixBeginsWhereItsRangeDoes) {
  shown([this] {
    numbers.take(5, "ТН-5");
    dialog.txtPrefix.userType("9520002");
    EXPECT_THAT(dialog.lblDoubt.caption(), ::testing::Not(HasSubstr("выданы")));
    dialog.btnSave.userClick();
  });
  EXPECT_EQ(numbers.range(), (NumberRange{"3", "9520002", 1, 20, 1}));
}

TEST_F(NumberRangeDialogTest, WhatAnotherPlaceHasIsNotAmongThoseLeft) {
  numbers.handOut(10, "Склад 2");
  shown([this] {
    dialog.txtLast.userType("25");
    EXPECT_THAT(dialog.lblLeft.caption(), ::testing::StartsWith("осталось номеров: 15\n"));
    dialog.txtLast.userType("20");
    dialog.txtNext.userType("11");
    EXPECT_THAT(dialog.lblLeft.caption(), HasSubstr("Номера кончились"));
  });
}

TEST_F(NumberRangeDialogTest, SaysWhichPartsOtherPlacesHave) {
  numbers.handOut(5, "Склад 2");
  shown([this] {
    EXPECT_EQ(dialog.txtLast.text(), "15");
    EXPECT_THAT(dialog.lblLeft.caption(),
                ::testing::StartsWith("осталось номеров: 15\nотданы 16–20: Склад 2, "));
  });
}

TEST_F(NumberRangeDialogTest, HandsOutAPartAndSaysWhatIsToBeTypedThere) {
  shown([this] {
    dialog.btnHandOut.userClick();
    EXPECT_EQ(dialog.lblDoubt.caption(), "Сколько номеров отдать?");
    dialog.txtPartCount.userType("5");
    dialog.btnHandOut.userClick();
    EXPECT_EQ(dialog.lblDoubt.caption(), "Кому отдать часть?");
    EXPECT_EQ(numbers.range(), range) << "nothing was handed out";
    dialog.txtPartPlace.userType("Склад 2");
    dialog.btnHandOut.userClick();
    EXPECT_EQ(dialog.lblDoubt.caption(),
              "Отдано. Там впишите: первая цифра 3, префикс 9520001, номера с 16 по 20.");
    EXPECT_EQ(dialog.txtLast.text(), "15");
    EXPECT_THAT(dialog.lblLeft.caption(), HasSubstr("отданы 16–20: Склад 2, "));
    dialog.txtPartCount.userType("100");
    dialog.btnHandOut.userClick();
    EXPECT_THAT(dialog.lblDoubt.caption(),
                ::testing::StartsWith("Отдано только 15 из 100. Там впишите: "));
    dialog.txtPartCount.userType("1");
    dialog.btnHandOut.userClick();
    EXPECT_THAT(dialog.lblDoubt.caption(), ::testing::StartsWith("Отдавать нечего"));
  });
  EXPECT_EQ(numbersLeft(numbers.range().value()), 0U);
}

TEST_F(NumberRangeDialogTest, EnterHandsOutWhereAPartIsTypedAndElseSaves) {
  shown([this] {
    dialog.txtPartCount.userFocus();
    dialog.txtPartCount.userType("5");
    dialog.txtPartCount.userKey(keys::enter);
    EXPECT_EQ(dialog.lblDoubt.caption(), "Кому отдать часть?");
    ASSERT_TRUE(dialog.shown());
    dialog.txtPartPlace.userFocus();
    dialog.txtPartPlace.userType("Склад 2");
    dialog.txtPartPlace.userKey(keys::enter);
    EXPECT_EQ(numbers.handedOut().size(), 1U);
    EXPECT_THAT(dialog.lblDoubt.caption(), ::testing::StartsWith("Отдано. "));
    ASSERT_TRUE(dialog.shown());
    dialog.txtPartPlace.userKey(keys::enter);
    EXPECT_FALSE(dialog.shown()) << "the part has gone, nothing waits to be handed out";
  });
  EXPECT_EQ(numbers.handedOut().size(), 1U);
  EXPECT_EQ(numbers.range()->last, 15U);
  shown([this] {
    dialog.txtPartPlace.userFocus();
    dialog.txtPartPlace.userType("Склад 3");
    dialog.txtPrefix.userFocus();
    dialog.txtPrefix.userKey(keys::enter);
    EXPECT_EQ(dialog.lblDoubt.caption(), "Сколько номеров отдать?");
  });
  shown([this] {
    dialog.txtPrefix.userKey(keys::enter);
    EXPECT_FALSE(dialog.shown()) << "what was typed at the last showing is gone";
  });
}

TEST_F(NumberRangeDialogTest, HandsNothingOutOfARangeThatIsNotSaved) {
  shown([this] {
    dialog.txtLast.userType("500");
    dialog.txtPartCount.userType("100");
    dialog.txtPartPlace.userType("Склад 2");
    dialog.btnHandOut.userClick();
    EXPECT_EQ(dialog.lblDoubt.caption(), "Сначала сохраните диапазон.");
    EXPECT_EQ(dialog.txtLast.text(), "500") << "what was typed stays";
    dialog.txtLast.userType("20");
    // Another window takes numbers meanwhile: nobody has changed these fields.
    numbers.take(2, "А");
    dialog.btnHandOut.userClick();
    EXPECT_EQ(dialog.lblDoubt.caption().find("Сначала"), std::string::npos);
  });
  EXPECT_EQ(numbers.range(), (NumberRange{"3", "9520001", 1, 2, 3}));
}

TEST_F(NumberRangeDialogTest, WithoutARangeThereIsNothingToHandOut) {
  store.texts.clear();
  shown([this] {
    dialog.txtPartCount.userType("5");
    dialog.txtPartPlace.userType("Склад 2");
    dialog.btnHandOut.userClick();
    EXPECT_THAT(dialog.lblDoubt.caption(), ::testing::StartsWith("Отдавать нечего"));
  });
}

TEST_F(NumberRangeDialogTest, DoubtsAnothersPrefixAndRefusesABadOne) {
  shown([this] {
    dialog.txtPrefix.userType("4600001");
    EXPECT_THAT(dialog.lblDoubt.caption(), HasSubstr("9520001000010"));
    dialog.txtPrefix.userType("46");
    dialog.btnSave.userClick();
    EXPECT_TRUE(dialog.shown());
    EXPECT_THAT(dialog.lblDoubt.caption(), HasSubstr("от 4 до 12"));
    EXPECT_EQ(dialog.lblExample.caption(), "");
  });
  EXPECT_EQ(numbers.range(), range) << "nothing was kept";
}

}  // namespace
}  // namespace awizo::test
