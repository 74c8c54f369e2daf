#include "linedialog/country_list.h"

#include "support/test_editor.h"

namespace awizo::test {
namespace {

using ::testing::ElementsAre;

/// A list of countries on a form of its own.
struct CountryList : ::testing::Test {
  TestEditor test;
  DlgIsoCodes isoCodes{test.screen, test.session};
  Form form{test.screen, "form"};
  DropDownList list{form, "list"};

  CountryList() { list.setRows({"(RU)Россия"}); }

  void addOf(std::string_view code) {
    list.setText(code);
    addCountryOfCode(list, isoCodes, test.locale);
  }
  void pick(const std::function<void()>& act) {
    test.face.onModal(act);
    pickCountry(list, isoCodes, test.session, test.locale);
  }
};

TEST_F(CountryList, ACodesCountryIsAddedAtTheEndOnce) {
  addOf("jp");
  EXPECT_THAT(list.rows(), ElementsAre("(RU)Россия", "(jp)Япония"));
  addOf("JP");
  EXPECT_THAT(list.rows(), ElementsAre("(RU)Россия", "(jp)Япония"));
  EXPECT_EQ(list.text(), "JP");
}

TEST_F(CountryList, TheFirstAndTheLastCountryOfTheTableAreFound) {
  addOf("AU");
  addOf("JP");
  EXPECT_THAT(list.rows(), ElementsAre("(RU)Россия", "(AU)Австралия", "(JP)Япония"));
}

TEST_F(CountryList, WhatIsNoCodeAddsNothing) {
  for (const char* text : {"XX", "", "Япония", "код ISO"}) addOf(text);
  EXPECT_THAT(list.rows(), ElementsAre("(RU)Россия"));
}

TEST_F(CountryList, APickedCountryIsAddedAndSelected) {
  pick([&] {
    isoCodes.grdISO.userCell(1, 0);
    isoCodes.btnAccept.userClick();
  });
  EXPECT_EQ(list.text(), "(AU)Австралия");
  EXPECT_EQ(list.index(), 1);
}

TEST_F(CountryList, ACancelledChoiceBringsTheEarlierBackOrNone) {
  list.setText("PL");
  pick([&] { isoCodes.btnCancel.userClick(); });
  EXPECT_EQ(list.text(), "");
  test.session.IsoResult = "(RU)РОССИЯ";
  pick([&] { isoCodes.btnCancel.userClick(); });
  EXPECT_EQ(list.text(), "(RU)РОССИЯ");
  EXPECT_THAT(list.rows(), ElementsAre("(RU)Россия"));
}

}  // namespace
}  // namespace awizo::test
