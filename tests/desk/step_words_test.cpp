#include "desk/step_words.h"

#include <gtest/gtest.h>

#include "support/control/taped_control.h"

namespace awizo::test {
namespace {

struct StepWords : testing::Test {
  StepWords() { startOffLine(session); }

  TapedControl session{nullptr};
  AwizoForm& form = session.desk.form;

  std::string wordsFor(const Control& control) {
    return stepWords(
        form, {.control = &control, .line = 17, .package = 3, .newLine = 26, .newPackage = 9});
  }
};

TEST_F(StepWords, NameWhatWasDoneAndWhere) {
  EXPECT_EQ(wordsFor(form.btnUsun), "удаление строки 17");
  EXPECT_EQ(wordsFor(form.btnDodaj), "добавление строки 26");
  EXPECT_EQ(wordsFor(form.btnEdytuj), "правка строки 17");
  EXPECT_EQ(wordsFor(form.grdPozycje), "правка строки 17");
  EXPECT_EQ(wordsFor(form.btnUsunOpak), "удаление упаковки 3");
  EXPECT_EQ(wordsFor(form.btnDodajOpak), "добавление упаковки 9");
  EXPECT_EQ(wordsFor(form.btnEdytujOpak), "правка упаковки 3");
  EXPECT_EQ(wordsFor(form.btnUzupelnij), "заполнение ставки НДС");
  EXPECT_EQ(wordsFor(form.btnNadpisz2), "заполнение страны");
}

TEST_F(StepWords, NameAFieldOfTheHeader) {
  EXPECT_EQ(wordsFor(form.txtNrZam), "поле «Номер заказа»");
  EXPECT_EQ(wordsFor(form.dpDataZam), "поле «Дата заказа»");
}

TEST_F(StepWords, AreThoseOfWhoeverGroupedIt) {
  EXPECT_EQ(stepWords(form, {.text = "упаковка по одной"}), "упаковка по одной");
}

TEST_F(StepWords, FollowTheCommand) {
  journal::History history(session.tape, session.desk.control);
  EXPECT_EQ(takeBackWords(form, history), "&Отменить");
  form.txtNrZam.userType("1");
  EXPECT_EQ(takeBackWords(form, history), "&Отменить: поле «Номер заказа»");
  EXPECT_EQ(doAgainWords(form, history), "&Повторить");
  history.takeBack();
  EXPECT_EQ(doAgainWords(form, history), "&Повторить: поле «Номер заказа»");
}

}  // namespace
}  // namespace awizo::test
