#include "filling_desk.h"

namespace awizo::test {
namespace {

using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr const char* blanksQuestion =
    "VIRD|question|YesNo|Пустые поля для 'Код страны производителя' будут заполнены.";
constexpr const char* allQuestion =
    "VIRD|question|YesNo|Вы уверены, что хотите заполнить все поля для 'Код страны "
    "производителя'?\\rВ этом случае текущие значения будут изменены.";
constexpr const char* refusal = "VIRD|exclamation|OK|The value of ISO code is not allowed";

class FillingTheCountry : public ::testing::Test, public FillingDesk {
 protected:
  FillingTheCountry() {
    putLines(editor, 4);
    const std::vector<std::string> countries{"", "-1", "0", "RU"};
    for (int i = 0; i < 4; ++i) {
      lines.setCell(i + 1, GRD_POZ_COUNTRY, countries[static_cast<std::size_t>(i)]);
    }
  }

  DropDownList& list = form.comboCountry;

  std::vector<std::string> countries() const { return column(lines, GRD_POZ_COUNTRY); }
  void fillBlanks(Answer answer = Answer::yes) {
    face.answer(answer);
    form.btnUzupelnij2.userClick();
  }
  void overwrite(Answer answer = Answer::yes) {
    face.answer(answer);
    form.btnNadpisz2.userClick();
  }
};

TEST_F(FillingTheCountry, ButtonsBearTheirCaptions) {
  EXPECT_EQ(form.btnUzupelnij2.caption(), "Заполнить пустые поля для 'Код страны производителя'");
  EXPECT_EQ(form.btnNadpisz2.caption(), "Заполнить все поля для 'Код страны производителя'");
}

TEST_F(FillingTheCountry, OnlyBlankCellsAreFilled) {
  list.userType("PL");
  fillBlanks();
  EXPECT_THAT(takeBoxes(), ElementsAre(blanksQuestion));
  EXPECT_THAT(countries(), ElementsAre("PL", "PL", "0", "RU"));
}

TEST_F(FillingTheCountry, AllCellsAreOverwritten) {
  list.userType("PL");
  overwrite();
  EXPECT_THAT(takeBoxes(), ElementsAre(allQuestion));
  EXPECT_THAT(countries(), Each("PL"));
}

TEST_F(FillingTheCountry, ARowOfTheListGivesItsCode) {
  list.userChoose(1);
  overwrite();
  EXPECT_THAT(countries(), Each("BY"));
  EXPECT_EQ(list.text(), "BY");
  EXPECT_EQ(list.index(), -1);
}

TEST_F(FillingTheCountry, ATypedCodePassesInLowerCaseAndNoRowIsAddedForTheTen) {
  list.userType("pl");
  overwrite();
  EXPECT_THAT(countries(), Each("PL"));
  EXPECT_EQ(list.text(), "PL");
  EXPECT_EQ(list.count(), 10);
}

TEST_F(FillingTheCountry, AnotherCodeJoinsBothLists) {
  list.userType("jp");
  overwrite();
  EXPECT_THAT(countries(), Each("JP"));
  EXPECT_EQ(list.rows().back(), "(JP)Япония");
  EXPECT_EQ(lineDialog.comboCountry.rows().back(), "(JP)Япония");
  EXPECT_EQ(list.count(), 11);
  EXPECT_EQ(list.text(), "JP");
  list.userType("jp");
  overwrite();
  EXPECT_EQ(list.count(), 11);
}

TEST_F(FillingTheCountry, ARowInAnotherCaseIsAnotherRow) {
  list.addRow("(jp)япония");
  lineDialog.touch().comboCountry.addRow("(jp)япония");
  list.userType("jp");
  overwrite();
  EXPECT_EQ(list.rows().back(), "(JP)Япония");
  EXPECT_EQ(lineDialog.comboCountry.rows().back(), "(JP)Япония");
}

/// The short list calls the country by another name than the table of all countries.
TEST_F(FillingTheCountry, BelarusJoinsTheListASecondTime) {
  list.userType("BY");
  overwrite();
  EXPECT_EQ(list.rows().back(), "(BY)Беларусь");
  EXPECT_EQ(list.rows()[1], "(BY)Белоруссия");
}

TEST_F(FillingTheCountry, ACodeInBracketsPassesOnItsFirstFourCharacters) {
  list.userType("(pl)что угодно");
  overwrite();
  EXPECT_THAT(countries(), Each("PL"));
}

TEST_F(FillingTheCountry, WhatIsNoCodeIsRefusedAndStaysAsTyped) {
  for (const char* wrong : {"p", "XX", "POL", "PL Польша", "pl "}) {
    list.userType(wrong);
    form.btnUzupelnij2.userClick();
    form.btnNadpisz2.userClick();
    EXPECT_THAT(takeBoxes(), ElementsAre(refusal, refusal)) << wrong;
    EXPECT_EQ(list.text(), wrong);
  }
  EXPECT_THAT(countries(), ElementsAre("", "-1", "0", "RU"));
  EXPECT_EQ(list.count(), 10);
}

TEST_F(FillingTheCountry, AnEmptyCountryBlanksAllCells) {
  list.userType("");
  overwrite();
  EXPECT_THAT(takeBoxes(), ElementsAre(allQuestion));
  EXPECT_THAT(countries(), Each(""));
  EXPECT_EQ(list.count(), 10);
}

TEST_F(FillingTheCountry, AfterNoTheTextIsTheBareCodeAndTheListHasGrown) {
  list.userType("(jp)x");
  overwrite(Answer::no);
  EXPECT_THAT(countries(), ElementsAre("", "-1", "0", "RU"));
  EXPECT_EQ(list.text(), "JP");
  EXPECT_EQ(list.rows().back(), "(JP)Япония");
}

TEST_F(FillingTheCountry, WithoutLinesNothingIsAskedAndTheListGrows) {
  putLines(editor, 0);
  list.userType("jp");
  form.btnUzupelnij2.userClick();
  EXPECT_THAT(takeBoxes(), IsEmpty());
  EXPECT_EQ(list.rows().back(), "(JP)Япония");
}

/// A bare code that became a row of the list comes after the ten, which have codes.
TEST_F(FillingTheCountry, ABareCodeAmongTheRowsBlanksTheCells) {
  list.addRow("PL");
  list.userType("pl");
  overwrite();
  EXPECT_THAT(countries(), Each(""));
}

TEST_F(FillingTheCountry, LinesAreNotCountedAnew) {
  form.ValidLineCount = 77;
  list.userType("pl");
  overwrite();
  EXPECT_EQ(form.ValidLineCount, 77);
}

TEST_F(FillingTheCountry, PastTheLimitWhatWasWrittenStays) {
  putLines(editor, 1425);
  list.userType("pl");
  overwrite();
  EXPECT_THAT(takeBoxes(), ElementsAre(allQuestion, "Ошибка в FillLines2()|critical|OK|Overflow"));
  EXPECT_EQ(lines.cell(1424, GRD_POZ_COUNTRY), "PL");
}

}  // namespace
}  // namespace awizo::test
