#include "line_dialog.h"
#include "platform/forms/keys.h"
#include "platform/text.h"

namespace awizo::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr const char* codesInOrder =
    "AU AT AZ AL DZ AI AO AD AQ AG AN AR AM AW AF BS BD BB BH BY BZ BE BJ BM BV BG BO BA BW BR BN "
    "BF BI BT VU VA GB HU VE VG VI AS TP VN GA HT GY GM GH GP GT GN GW DE GI HN HK GD GL GR GE GU "
    "DK CD DJ DM DO EG ZM EH ZW IL IN ID JO IQ IR IE IS ES IT YE CV KZ KY KH CM CA QA KE CY KG KI "
    "CN CC CO KM CG CR CI CU KW CK LA LV LS LR LB LY LT LI LU MU MR MG YT MO MK MW MY ML MV MT MA "
    "MQ MH MX FM MZ MD MC MN MS MM NA NR NP NE NG NL NI NU NZ NC NO NF AE OM PK PW PS PA PG PY PE "
    "PN PL PT PR RE CX RU RW RO SV WS SM ST SA SZ SJ SH KP MP SC VC PM SN KN LC SG SY SK SI US SB "
    "SO SD SR SL TJ TH TW TZ TC TG TK TO TT TV TN TM TR UG UZ UA WF UY FO FJ PH FI FK FR GF PF HM "
    "HR CF TD CZ CL CH SE LK EC GQ ER EE ET YU ZA GS KR JM JP";

struct IsoList : ::testing::Test {
  LineDialog test;
  DlgIsoCodes& list = test.isoCodes;
  Table& table = list.grdISO;

  std::string nameOf(std::string_view code) {
    for (int row = 1; row < table.rows(); ++row) {
      if (table.cell(row, 1) == code) return table.cell(row, 0);
    }
    return "(missing)";
  }
  int rowOf(std::string_view code) {
    for (int row = 1; row < table.rows(); ++row) {
      if (table.cell(row, 1) == code) return row;
    }
    return -1;
  }
  /// Shows the list alone to a user who does this, and closes it.
  void show(const std::function<void()>& act) {
    test.face.onModal([this, act] {
      act();
      if (list.shown()) list.btnCancel.userClick();
    });
    list.touch().showModal();
  }
  /// The part of the table that is marked: row, column, row, column.
  std::vector<int> marked() const {
    return {table.row(), table.column(), table.rowSel(), table.columnSel()};
  }
};

TEST_F(IsoList, HasItsCaptionsAndColumns) {
  list.touch();
  EXPECT_EQ(list.caption(), "ISO коды стран.");
  EXPECT_EQ(list.btnAccept.caption(), "&Добавить");
  EXPECT_EQ(list.btnCancel.caption(), "&Назад");
  EXPECT_EQ(table.rows(), 237);
  EXPECT_EQ(table.columns(), 2);
  EXPECT_EQ(table.fixedRows(), 1);
  EXPECT_TRUE(table.selectsRows);
  EXPECT_EQ(table.columnWidth(0), 3000);
  EXPECT_EQ(table.look(5, 1).alignment, Alignment::centre);
  EXPECT_THAT(TestEditor::row(table, 0), ElementsAre("Название", "код ISO"));
  EXPECT_TRUE(table.look(0, 0).bold);
  EXPECT_TRUE(table.look(0, 1).bold);
}

TEST_F(IsoList, HoldsEveryCodeInTheOrderOfTheNames) {
  list.touch();
  const std::vector<std::string> codes = split(codesInOrder, " ");
  ASSERT_EQ(codes.size(), 236U);
  for (std::size_t i = 0; i < codes.size(); ++i) {
    EXPECT_EQ(table.cell(3 + 2 * static_cast<int>(i)), codes[i]);
  }
  EXPECT_EQ(table.cell(473), "JP");
}

TEST_F(IsoList, HasTheTellingNames) {
  list.touch();
  EXPECT_EQ(nameOf("AU"), "Австралия");
  EXPECT_EQ(nameOf("AN"), "Антильские о-ва (NL)");
  EXPECT_EQ(nameOf("BY"), "Беларусь");
  EXPECT_EQ(nameOf("TP"), "Восточный Тимор");
  EXPECT_EQ(nameOf("CD"), "Демократическая Республика Конго");
  EXPECT_EQ(nameOf("CG"), "Конго");
  EXPECT_EQ(nameOf("PS"), "Палестинская автономия");
  EXPECT_EQ(nameOf("RU"), "Россия");
  EXPECT_EQ(nameOf("KP"), "Северная Корея (КНДР)");
  EXPECT_EQ(nameOf("US"), "Соединенные Штаты Америки");
  EXPECT_EQ(nameOf("UA"), "Украина");
  EXPECT_EQ(nameOf("YU"), "Югославия");
  EXPECT_EQ(nameOf("ZA"), "Южная Африка");
  EXPECT_EQ(nameOf("KR"), "Южная Корея (Республика Корея)");
  EXPECT_EQ(nameOf("JM"), "Ямайка");
  EXPECT_EQ(nameOf("JP"), "Япония");
}

TEST_F(IsoList, EveryCountryHasAPlainRussianName) {
  list.touch();
  for (int row = 1; row < table.rows(); ++row) {
    const std::string& name = table.cell(row, 0);
    EXPECT_FALSE(name.empty()) << row;
    EXPECT_GE(static_cast<unsigned char>(name.front()), 0xD0) << name;
    EXPECT_EQ(name, std::string(trimmed(name)));
  }
}

TEST_F(IsoList, LoadsAtTheFirstTouchAndEmptiesTheChoice) {
  test.session.IsoResult = "(RU)Россия";
  EXPECT_FALSE(list.loaded());
  list.touch();
  EXPECT_EQ(test.session.IsoResult, "");
  test.session.IsoResult = "(RU)Россия";
  list.touch();
  EXPECT_EQ(test.session.IsoResult, "(RU)Россия");
}

// Choosing.

TEST_F(IsoList, AcceptedGivesTheCurrentRowsCountry) {
  show([&] {
    table.userCell(rowOf("PL"), 0);
    list.btnAccept.userClick();
    EXPECT_FALSE(list.shown());
  });
  EXPECT_EQ(test.session.IsoResult, "(PL)Польша");
  EXPECT_EQ(list.PickedIndex, rowOf("PL") * 2 + 1);
}

TEST_F(IsoList, AcceptedAtOnceGivesTheRowThatTheTableStartsOn) {
  show([&] { list.btnAccept.userClick(); });
  EXPECT_EQ(test.session.IsoResult, "(AU)Австралия");
}

TEST_F(IsoList, CancelledLeavesTheEarlierChoice) {
  show([&] { list.btnAccept.userClick(); });
  show([&] {
    table.userCell(5, 0);
    list.btnCancel.userClick();
  });
  show([&] { list.userClose(); });
  EXPECT_EQ(test.session.IsoResult, "(AU)Австралия");
}

TEST_F(IsoList, EnterAcceptsAndEscapeCancels) {
  show([&] {
    table.userKey(keys::enter);
    EXPECT_FALSE(list.shown());
  });
  EXPECT_EQ(test.session.IsoResult, "(AU)Австралия");
  show([&] {
    table.userCell(5, 0);
    table.userKey(keys::escape);
    EXPECT_FALSE(list.shown());
  });
  EXPECT_EQ(test.session.IsoResult, "(AU)Австралия");
}

TEST_F(IsoList, BlanksInACodeAreLeftOut) {
  list.touch();
  table.setCell(3, " A U ");
  show([&] { list.btnAccept.userClick(); });
  EXPECT_EQ(test.session.IsoResult, "(AU)Австралия");
}

// One whole row is marked, whatever the user does.

TEST_F(IsoList, ARangeMarkedByTheMouseFallsBackToItsFirstRow) {
  show([&] {
    table.userSelect(3, 1, 9, 1);
    EXPECT_THAT(marked(), ElementsAre(3, 0, 3, 1));
    list.btnAccept.userClick();
  });
  EXPECT_EQ(test.session.IsoResult, "(AZ)Азербайджан");
  EXPECT_FALSE(list.MouseHeld);
  EXPECT_TRUE(table.redraw());
}

TEST_F(IsoList, ARangeMarkedByTheShiftKeyFallsBackToo) {
  show([&] {
    table.userCell(3, 0);
    table.userKey(keys::down, true);
    table.userKey(keys::pageDown, true);
    EXPECT_THAT(marked(), ElementsAre(3, 0, 3, 1));
    EXPECT_FALSE(list.ShiftHeld);
    EXPECT_TRUE(table.redraw());
  });
}

TEST_F(IsoList, TheShiftKeyItselfIsHeldWhateverTheMarksOfItsEvent) {
  show([&] {
    table.onKeyDown(keys::shift, false);
    EXPECT_TRUE(list.ShiftHeld);
    table.onKeyUp(keys::shift, false);
    EXPECT_FALSE(list.ShiftHeld);
    table.onKeyDown(keys::down, false);
    EXPECT_FALSE(list.ShiftHeld);
  });
}

TEST_F(IsoList, TheTableIsntPaintedWhileShiftOrTheMouseIsHeld) {
  std::vector<bool> painting;
  show([&] {
    table.userCell(3, 0);
    const int watching = table.observers.add([&](const Change& change) {
      if (change.aspect == Aspect::redraw) painting.push_back(table.redraw());
    });
    table.userKey(keys::shift, true);
    table.userCell(5, 1);
    table.userKey(keys::down);
    table.observers.remove(watching);
  });
  EXPECT_THAT(painting, ElementsAre(false, true, false, true));
}

TEST_F(IsoList, TheArrowsMoveTheCurrentRow) {
  show([&] {
    table.userCell(3, 0);
    table.userKey(keys::down);
    EXPECT_EQ(table.row(), 4);
    list.btnAccept.userClick();
  });
  EXPECT_EQ(test.session.IsoResult, "(AL)Албания");
}

// From the line dialog.

struct IsoListOfTheLine : IsoList {
  DlgDodaj& dialog = test.dialog;
  DropDownList& countries = dialog.comboCountry;

  IsoListOfTheLine() { test.load(); }
  /// In the open list of countries, the user takes this one.
  void willTake(std::string_view code) {
    test.face.onModal([this, code] {
      table.userCell(rowOf(code), 0);
      list.btnAccept.userClick();
    });
  }
  void willCancel() {
    test.face.onModal([this] { list.btnCancel.userClick(); });
  }
};

TEST_F(IsoListOfTheLine, AChosenCountryIsAddedAndSelected) {
  test.show([&] {
    willTake("FR");
    dialog.btnISOcodes.userClick();
  });
  EXPECT_EQ(countries.count(), 11);
  EXPECT_EQ(countries.rows().back(), "(FR)Франция");
  EXPECT_EQ(countries.index(), 10);
  EXPECT_EQ(countries.text(), "(FR)Франция");
}

TEST_F(IsoListOfTheLine, ACountryOfTheListIsSelectedThere) {
  test.show([&] {
    willTake("PL");
    dialog.btnISOcodes.userClick();
  });
  EXPECT_EQ(countries.count(), 10);
  EXPECT_EQ(countries.index(), 6);
}

TEST_F(IsoListOfTheLine, AnEntryThatDiffersInCaseIsntAddedAgain) {
  countries.addRow("(FR)ФРАНЦИЯ");
  test.show([&] {
    willTake("FR");
    dialog.btnISOcodes.userClick();
  });
  EXPECT_EQ(countries.count(), 11);
  EXPECT_EQ(countries.index(), -1);
  EXPECT_EQ(countries.text(), "(FR)Франция");
}

TEST_F(IsoListOfTheLine, TheShortListsNameStandsBesideTheTables) {
  test.show([&] {
    willTake("BY");
    dialog.btnISOcodes.userClick();
  });
  EXPECT_EQ(countries.text(), "(BY)Беларусь");
  EXPECT_EQ(countries.rows()[1], "(BY)Белоруссия");
  EXPECT_EQ(countries.count(), 11);
}

TEST_F(IsoListOfTheLine, CancellingBeforeAnyChoiceEmptiesTheField) {
  test.show([&] {
    countries.userType("RU");
    willCancel();
    dialog.btnISOcodes.userClick();
  });
  EXPECT_EQ(countries.text(), "");
  EXPECT_EQ(countries.count(), 10);
}

TEST_F(IsoListOfTheLine, CancellingBringsTheEarlierChoiceBack) {
  test.show([&] {
    willTake("PL");
    dialog.btnISOcodes.userClick();
    countries.userType("RU");
    willCancel();
    dialog.btnISOcodes.userClick();
  });
  EXPECT_EQ(countries.text(), "(PL)Польша");
}

TEST_F(IsoListOfTheLine, WhatADoubleClickPicksComesWithTheNextClick) {
  test.show([&] {
    countries.userType("RU");
    willTake("PL");
    dialog.btnISOcodes.userDoubleClick();
    EXPECT_EQ(countries.text(), "RU") << "nothing is read back";
    willCancel();
    dialog.btnISOcodes.userClick();
    EXPECT_EQ(countries.text(), "(PL)Польша");
  });
  EXPECT_THAT(test.face.modalForms(), ElementsAre("DlgDodaj", "DlgIsoCodes", "DlgIsoCodes"));
}

}  // namespace
}  // namespace awizo::test
