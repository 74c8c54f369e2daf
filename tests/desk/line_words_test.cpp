#include "desk/line_words.h"

#include <gtest/gtest.h>

#include "support/documents.h"
#include "support/logged.h"
#include "support/test_editor.h"
#include "tables/columns/columns.h"

namespace awizo::test {
namespace {

struct LineWords : ::testing::Test {
  explicit LineWords(std::string_view localeName = "ru_RU") : test(localeName) {
    putLines(test.editor, 1);
    set(GRD_POZ_LP, "17");
    set(GRD_POZ_NAME, "Кофе");
  }
  void set(int column, std::string_view text) { test.form.grdPozycje.setCell(1, column, text); }
  std::string words() const { return lineWords(test.editor, 1); }
  std::string fault() const { return lineFaultWords(test.editor, 1); }

  TestEditor test;
};

struct AmericanLineWords : LineWords {
  AmericanLineWords() : LineWords("en_US") {}
};

TEST_F(LineWords, TellTheQuantitiesOfTheLineAndWhyItIsPink) {
  set(GRD_POZ_QTY_ORDERED, "6,000");
  set(GRD_POZ_QTY_DESPATCHED, "6,000");
  set(GRD_POZ_PACKED_QTY, "0,000");
  set(GRD_POZ_PRICE, "abc");
  EXPECT_EQ(words(),
            "17 · Кофе · заказано 6 · отгружено 6 · упаковано 0 · осталось 6 · цена не число");
}

TEST_F(LineWords, TellWhatIsLeftInTheLocalesForm) {
  set(GRD_POZ_QTY_ORDERED, "");
  set(GRD_POZ_QTY_DESPATCHED, "0,300");
  set(GRD_POZ_PACKED_QTY, "0,100");
  EXPECT_EQ(words(), "17 · Кофе · отгружено 0,3 · упаковано 0,1 · осталось 0,2");
}

TEST_F(AmericanLineWords, TellWhatIsLeftInTheLocalesForm) {
  set(GRD_POZ_QTY_ORDERED, "1000.000");
  set(GRD_POZ_QTY_DESPATCHED, "70.500");
  set(GRD_POZ_PACKED_QTY, "71.750");
  set(GRD_POZ_NET_AMOUNT, "2.00");
  EXPECT_EQ(words(),
            "17 · Кофе · заказано 1000 · отгружено 70.5 · упаковано 71.75 · осталось -1.25");
}

TEST_F(LineWords, TellNoRestOfWhatIsNoNumber) {
  set(GRD_POZ_QTY_DESPATCHED, "много");
  EXPECT_EQ(words(),
            "17 · Кофе · заказано 5 · отгружено много · упаковано 0 · отгруженное количество не "
            "число");
}

TEST_F(LineWords, CutALongNameSoThatTheRestIsSeen) {
  std::string name;
  for (int i = 0; i < 61; ++i) name += "ж";
  set(GRD_POZ_NAME, name);
  EXPECT_EQ(words(),
            "17 · " + name.substr(2) + "… · заказано 5 · отгружено 1 · упаковано 0 · осталось 1");
}

TEST_F(LineWords, SayNothingOfARowThatHoldsNoLine) {
  EXPECT_EQ(lineWords(test.editor, 0), "");
  EXPECT_EQ(lineWords(test.editor, 2), "");
  test.session.LineCount = 0;
  EXPECT_EQ(words(), "");
  EXPECT_EQ(fault(), "");
}

TEST_F(LineWords, TellEveryReasonOfAPinkRow) {
  EXPECT_EQ(fault(), "");
  const std::vector<std::tuple<int, std::string, std::string>> cases{
      {GRD_POZ_CDN, "1234567/010108/1234567", "первая часть номера ГТД — не 8 цифр"},
      {GRD_POZ_CDN, "12345678/0101/1234567", "дата в номере ГТД — не 6 цифр"},
      {GRD_POZ_CDN, "12345678/010108/123", "третья часть номера ГТД — не 7 цифр"},
      {GRD_POZ_CDN, "12345678/010108/1234567/1234", "последняя часть номера ГТД длиннее 3 знаков"},
      {GRD_POZ_NET_AMOUNT, "x", "сумма не число"},
      {GRD_POZ_PRICE, "x", "цена не число"},
      {GRD_POZ_QTY_DESPATCHED, "x", "отгруженное количество не число"},
      {GRD_POZ_QTY_DESPATCHED, "", "нет отгруженного количества"},
      {GRD_POZ_QTY_ORDERED, "x", "заказанное количество не число"},
      {GRD_POZ_EAN, "ABC", "EAN не число"},
      {GRD_POZ_EAN, "", "нет EAN"},
  };
  // Each stands before the ones that were set earlier, as the line check finds them.
  for (const auto& [column, text, expected] : cases) {
    set(column, text);
    EXPECT_EQ(fault(), expected);
  }
}

TEST_F(LineWords, LeaveLogAndBadColumnNameAlone) {
  test.form.BadColumnName = "earlier";
  openLog(test);
  set(GRD_POZ_CDN, "x/y/z");
  EXPECT_NE(fault(), "");
  EXPECT_EQ(test.form.BadColumnName, "earlier");
  EXPECT_TRUE(loggedMessages(test).empty());
}

TEST_F(LineWords, TellNoFaultBeyondWhatTheCellIndexReaches) {
  putLines(test.editor, 1424);
  test.form.grdPozycje.setCell(1424, GRD_POZ_CDN, "x/y/z");
  EXPECT_EQ(lineFaultWords(test.editor, 1424), "");
  EXPECT_EQ(lineWords(test.editor, 1424),
            "1424 · заказано 5 · отгружено 1 · упаковано 0 · осталось 1");
}

}  // namespace
}  // namespace awizo::test
