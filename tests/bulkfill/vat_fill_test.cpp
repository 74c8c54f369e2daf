#include "filling_desk.h"

namespace awizo::test {
namespace {

using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr const char* blankRatesQuestion =
    "VIRD|question|YesNo|Пустые поля для НДС будут заполнены.";
constexpr const char* allRatesQuestion =
    "VIRD|question|YesNo|Вы уверены, что хотите заполнить все поля для НДС выбранной ставкой?\\r"
    "В этом случае текущие значения будут изменены.";

class FillingTheRate : public ::testing::Test, public FillingDesk {
 protected:
  FillingTheRate() {
    putLines(editor, 4);
    const std::vector<std::string> rates{"", "-1", "0", "10"};
    for (int i = 0; i < 4; ++i) {
      lines.setCell(i + 1, GRD_POZ_TAX_RATE, rates[static_cast<std::size_t>(i)]);
      lines.setCell(i + 1, GRD_POZ_TAX_CATEGORY, "E");
    }
  }

  std::vector<std::string> rates() const { return column(lines, GRD_POZ_TAX_RATE); }
  std::vector<std::string> categories() const { return column(lines, GRD_POZ_TAX_CATEGORY); }
};

TEST_F(FillingTheRate, ButtonsBearTheirCaptions) {
  EXPECT_EQ(form.btnUzupelnij.caption(), "Заполнить пустые поля для НДС");
  EXPECT_EQ(form.btnNadpisz.caption(), "Заполнить все поля для НДС");
}

TEST_F(FillingTheRate, OnlyBlankCellsAreFilled) {
  form.comboStawkaVAT.userChoose(3);
  face.answer(Answer::yes);
  form.btnUzupelnij.userClick();
  EXPECT_THAT(takeBoxes(), ElementsAre(blankRatesQuestion));
  EXPECT_THAT(rates(), ElementsAre("18", "18", "0", "10"));
  EXPECT_THAT(categories(), ElementsAre("S", "S", "E", "E"));
}

TEST_F(FillingTheRate, AllCellsAreOverwritten) {
  form.comboStawkaVAT.userChoose(1);
  face.answer(Answer::yes);
  form.btnNadpisz.userClick();
  EXPECT_THAT(takeBoxes(), ElementsAre(allRatesQuestion));
  EXPECT_THAT(rates(), Each("0"));
  EXPECT_THAT(categories(), Each("S"));
}

TEST_F(FillingTheRate, AnEmptyRateEmptiesRatesAndCategories) {
  form.comboStawkaVAT.userChoose(0);
  face.answer(Answer::yes);
  form.btnNadpisz.userClick();
  EXPECT_THAT(rates(), Each(""));
  EXPECT_THAT(categories(), Each(""));
}

TEST_F(FillingTheRate, NoMeansThatNothingHappens) {
  form.comboStawkaVAT.userChoose(3);
  form.ValidLineCount = 77;
  face.answer(Answer::no);
  form.btnUzupelnij.userClick();
  face.answer(Answer::no);
  form.btnNadpisz.userClick();
  EXPECT_THAT(rates(), ElementsAre("", "-1", "0", "10"));
  EXPECT_THAT(categories(), Each("E"));
  EXPECT_EQ(form.ValidLineCount, 77) << "nothing is counted";
}

TEST_F(FillingTheRate, WithoutLinesNothingIsAsked) {
  putLines(editor, 0);
  form.btnUzupelnij.userClick();
  form.btnNadpisz.userClick();
  EXPECT_THAT(takeBoxes(), IsEmpty());
}

TEST_F(FillingTheRate, LinesAreCountedAnew) {
  lines.setCell(2, GRD_POZ_EAN, "ABC");
  form.comboStawkaVAT.userChoose(3);
  face.answer(Answer::yes);
  form.btnUzupelnij.userClick();
  EXPECT_EQ(form.ValidLineCount, 3);
  EXPECT_EQ(form.grdSuma.cell(1, GRD_SUMA_LINE_COUNT), "4");
}

TEST_F(FillingTheRate, PastTheLimitWhatWasWrittenStays) {
  putLines(editor, 1425);
  form.comboStawkaVAT.userChoose(3);
  face.answer(Answer::yes);
  form.btnNadpisz.userClick();
  EXPECT_THAT(takeBoxes(),
              ElementsAre(allRatesQuestion, "Ошибка в FillLines()|critical|OK|Overflow"));
  EXPECT_EQ(lines.cell(1424, GRD_POZ_TAX_RATE), "18");
  EXPECT_EQ(lines.cell(1424, GRD_POZ_TAX_CATEGORY), "S");
}

}  // namespace
}  // namespace awizo::test
