#include "assistants/distributing.h"

#include <gmock/gmock.h>

#include <ctime>

#include "assistants/packing_session.h"
#include "support/documents.h"

namespace awizo::test {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

const DistributionChoice evenly{.lines = {1, 2, 3, 4}, .packages = {1, 2}};
const DistributionChoice byThree{
    .lines = {1, 2, 3, 4}, .packages = {2, 1}, .spread = Spread::soMany, .each = 3000};
const DistributionChoice allHere{.lines = {1, 2, 3, 4}, .packages = {2}, .spread = Spread::allHere};

class DistributingIn : public testing::TestWithParam<const char*> {};
INSTANTIATE_TEST_SUITE_P(Locales, DistributingIn, testing::Values("ru_RU", "en_US"),
                         [](const auto& locale) { return std::string(locale.param); });

TEST_P(DistributingIn, GivesTheSameTablesAsTheSameActsByHand) {
  for (const DistributionChoice& choice : {evenly, byThree, allHere}) {
    PackingSession session(GetParam());
    PackingSession byHand(GetParam());
    session.addLinesAndBoxes();
    byHand.addLinesAndBoxes();
    const std::vector<LinePlan> plans = plansOf(session.control.editor, choice);
    EXPECT_EQ(distribute(session.assistance, choice, plans, {}).done, 3);
    for (const LinePlan& plan : plans) {
      if (!plan.parts.empty()) byHand.packByHand(plan, choice);
    }
    for (Table AwizoForm::*table :
         {&AwizoForm::grdOpakowania, &AwizoForm::grdPozycje, &AwizoForm::grdSuma}) {
      EXPECT_EQ(session.cells(session.form.*table), byHand.cells(byHand.form.*table));
    }
    EXPECT_EQ(session.packed(1), session.quantity("8.250"));
    EXPECT_EQ(session.packed(2), session.quantity("12.500"));
    EXPECT_EQ(session.packed(3), session.quantity("0.000"));
    EXPECT_EQ(session.packed(4), session.quantity("2.500"));
  }
}

struct Distributing : testing::Test, PackingSession {};

TEST_F(Distributing, WritesWhatTheDialogsWrite) {
  addLinesAndBoxes();
  const std::size_t dialogs = screen.modalForms().size();
  screen.takeBoxes();
  const AssistantReport report = run(evenly);
  EXPECT_EQ(references(1), "2@Короб 1@1@4,250$3@Короб 2@1@4,000");
  EXPECT_EQ(references(3), "");
  EXPECT_EQ(references(4), "2@Короб 1@1@1,500$3@Короб 2@1@1,000");
  EXPECT_THAT(screen.modalForms(), SizeIs(dialogs));
  EXPECT_THAT(screen.boxes(), IsEmpty());
  EXPECT_THAT(report.notDone,
              ElementsAre(NotDone{"Строка 3 (Соль)",
                                  "осталось 0,5: меньше единицы в упаковку не положить"}));
  EXPECT_EQ(distributionWords(report),
            "Разложено строк: 3 из 3.\r\n"
            "Строка 3 (Соль): осталось 0,5: меньше единицы в упаковку не положить");
}

TEST_F(Distributing, DividesWhatIsMeasuredAndNothingElse) {
  for (const char* box : {"Короб 1", "Короб 2"}) addBox(box);
  std::string divided;
  for (const char* unit : {"PCE", "KGM", "MTR", "KMT", "PA", "SET", "PR", "TNE", "LTR", ""}) {
    addLine("Чай", "5");
    const int row = control.editor.session.LineCount;
    form.grdPozycje.setCell(row, GRD_POZ_UNIT, unit);
    const std::vector<LinePlan> plans =
        plansOf(control.editor, {.lines = {row}, .packages = {1, 2}});
    if (plans.at(0).parts.at(0).quantity % 1000 != 0) divided += std::string(unit) + " ";
  }
  EXPECT_EQ(divided, "KGM MTR KMT TNE LTR ");
}

TEST_F(Distributing, LeavesWhatWasSetByHandAndPacksTheRest) {
  addLinesAndBoxes();
  packByHand({.row = 1, .parts = {{.package = 1, .quantity = 3000}}}, evenly);
  run({.lines = {1}, .packages = {1, 2}});
  EXPECT_EQ(references(1), "3@Короб 2@1@3,000$2@Короб 1@1@3,250$3@Короб 2@1@2,000");
  EXPECT_THAT(plansOf(control.editor, {.lines = {1}, .packages = {1, 2}}), IsEmpty());
}

TEST_F(Distributing, LeavesARefusedLineAsItWasAndGoesOn) {
  addLinesAndBoxes();
  // As a file or an order brings it: such a line is pink.
  form.grdPozycje.setCell(1, GRD_POZ_PRICE, "дорого");
  form.grdPozycje.setCell(2, GRD_POZ_QTY_DESPATCHED, "много");
  const std::vector<std::string> before = cells(form.grdPozycje);
  const AssistantReport report = run({.lines = {1, 2}, .packages = {1}});
  EXPECT_EQ(cells(form.grdPozycje), before);
  EXPECT_EQ(report.done, 0);
  EXPECT_THAT(report.notDone,
              ElementsAre(NotDone{"Строка 1 (Чай)",
                                  "Неправильно количество в поле 'Цена за единицу без НДС'"},
                          NotDone{"Строка 2 (Кофе)", "отгруженное количество не число"}));
  EXPECT_EQ(run({.lines = {1, 4}, .packages = {1}}).done, 1);
  EXPECT_EQ(packed(4), "2,500");
  EXPECT_TRUE(form.takesInput());
  EXPECT_FALSE(control.dlgDodaj.shown());
}

TEST_F(Distributing, NamesWhatTheControlWouldNotLetThrough) {
  addLinesAndBoxes();
  const DistributionChoice choice{.lines = {1}, .packages = {1}};
  const AssistantReport report =
      distribute(assistance, choice, {{.row = 1, .parts = {{.package = 0, .quantity = 8250}}}}, {});
  ASSERT_THAT(report.notDone, SizeIs(1));
  EXPECT_THAT(report.notDone[0].why, HasSubstr("от 1 до 8"));
  EXPECT_EQ(references(1), "");
}

TEST_F(Distributing, StopsBetweenTwoLines) {
  addLinesAndBoxes();
  const AssistantReport report = run(evenly, [](int done, int all) {
    EXPECT_EQ(all, 3);
    return done < 2;
  });
  EXPECT_TRUE(report.isStopped);
  EXPECT_EQ(report.done, 2);
  EXPECT_EQ(packed(2), "12,500");
  EXPECT_EQ(references(4), "");
}

TEST_F(Distributing, IsTakenBackAsOneStep) {
  addLinesAndBoxes();
  const std::vector<std::string> before = cells(form.grdPozycje);
  run(evenly);
  EXPECT_EQ(digestOfReplay(), digest());
  ASSERT_NE(history.toTakeBack(), nullptr);
  EXPECT_EQ(history.toTakeBack()->text, "раскладка по упаковкам");
  history.takeBack();
  EXPECT_EQ(cells(form.grdPozycje), before);
  EXPECT_EQ(digestOfReplay(), digest());
}

TEST_F(Distributing, OfAsManyLinesAsThereCanBeTakesLessThanFiveSeconds) {
#ifdef NDEBUG
  constexpr bool isFull = true;
#else
  constexpr bool isFull = false;  // checked memory is slow, and so is plain code
#endif
  constexpr int count = isFull ? 1423 : 100;
  addBox("Короб 1");
  putLines(control.editor, count);
  DistributionChoice choice{.packages = {1}};
  for (int row = 1; row <= count; ++row) choice.lines.push_back(row);
  const std::vector<LinePlan> plans = plansOf(control.editor, choice);
  // The processor's time, since other tests run beside this one.
  const std::clock_t start = std::clock();
  const AssistantReport report = distribute(assistance, choice, plans, {});
  const double taken = static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
  EXPECT_EQ(report.done, count) << distributionWords(report);
  RecordProperty("seconds", std::to_string(taken));
  if (isFull) {
    EXPECT_LT(taken, 5.0);
  }
}

}  // namespace
}  // namespace awizo::test
