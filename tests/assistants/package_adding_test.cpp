#include "assistants/package_adding.h"

#include <gmock/gmock.h>

#include <ctime>

#include "assistants/assisted_session.h"

namespace awizo::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// `comma`: between whole and fraction.
PackagePlan boxes(int count, const std::string& comma = ",") {
  return {.type = 1,
          .count = count,
          .description = "Короб #",
          .weight = "1" + comma + "5",
          .length = "0" + comma + "6",
          .width = "0" + comma + "4",
          .height = "0" + comma + "25",
          .deliveryPlace = "9520002000026"};
}

PackagePlan pallet() {
  return {.type = 0, .description = "Паллета", .deliveryPlace = "9520002000026"};
}

/// Does by hand what the plan says; the packages have the numbers from `serial` on.
void addByHand(AssistedSession& session, const PackagePlan& plan, std::uint64_t serial) {
  for (const std::string& description : descriptionsOf(plan, session.control.editor)) {
    session.screen.onModal([&] {
      DlgSzczegoly& dialog = session.control.dlgSzczegoly;
      dialog.cboxPackageType.userChoose(plan.type);
      dialog.txtPackageDesc.userType(description);
      if (plan.parent >= 0) dialog.cboxParentPackage.userChoose(plan.parent);
      dialog.txtPackageWeight.userType(plan.weight);
      dialog.txtPackageLength.userType(plan.length);
      dialog.txtPackageWidth.userType(plan.width);
      dialog.txtPackageHeight.userType(plan.height);
      dialog.txtSerialNumberN.userType(session.number(serial++));
      dialog.cboxILNLokalizacji.userType(plan.deliveryPlace);
      dialog.btnDodaj.userClick();
    });
    session.form.btnDodajOpak.userClick();
  }
}

class PackageAddingIn : public testing::TestWithParam<const char*> {};
INSTANTIATE_TEST_SUITE_P(Locales, PackageAddingIn, testing::Values("ru_RU", "en_US"),
                         [](const auto& locale) { return std::string(locale.param); });

TEST_P(PackageAddingIn, GivesTheSameTablesAsTheSameActsByHand) {
  AssistedSession session(GetParam());
  AssistedSession byHand(GetParam());
  const std::string comma = GetParam() == std::string("ru_RU") ? "," : ".";
  PackagePlan inner = boxes(5, comma);
  inner.parent = 0;
  std::uint64_t serial = 1;
  for (const PackagePlan& plan : {pallet(), boxes(2, comma), inner}) {
    const AssistantReport report = addPackages(session.assistance, plan, {});
    EXPECT_EQ(report.done, plan.count);
    EXPECT_EQ(addingWords(report), "");
    addByHand(byHand, plan, serial);
    serial += static_cast<std::uint64_t>(plan.count);
  }
  EXPECT_EQ(session.packageCount(), 8);
  EXPECT_EQ(session.cell(8, GRD_OPAK_LEVEL), "2");
  EXPECT_EQ(session.cell(8, GRD_OPAK_LENGTH), "0" + comma + "600");
  for (Table AwizoForm::*table :
       {&AwizoForm::grdOpakowania, &AwizoForm::grdPozycje, &AwizoForm::grdSuma}) {
    EXPECT_EQ(session.cells(session.form.*table), byHand.cells(byHand.form.*table));
  }
  EXPECT_EQ(session.form.LastPackageSerial, byHand.form.LastPackageSerial);
  EXPECT_TRUE(session.form.takesInput());
}

struct PackageAdding : testing::Test, AssistedSession {};

TEST_F(PackageAdding, ShowsNothing) {
  const std::size_t works = screen.works().size();
  addPackages(assistance, boxes(3), {});
  EXPECT_THAT(screen.modalForms(), IsEmpty());
  EXPECT_THAT(screen.boxes(), IsEmpty());
  EXPECT_EQ(screen.works().size(), works);
  // The user's own dialogs are shown again.
  screen.onModal([](Form& shown) { shown.userClose(); });
  form.btnDodajOpak.userClick();
  EXPECT_THAT(screen.modalForms(), ElementsAre("DlgSzczegoly"));
}

TEST_F(PackageAdding, TakesTheNumbersAsOneBlock) {
  addPackages(assistance, boxes(500), [&](int done, int) {
    EXPECT_EQ(numbers.range()->next, 501U) << done;
    return true;
  });
  EXPECT_EQ(cell(1, GRD_OPAK_SERIAL_NUMBER), number(1));
  EXPECT_EQ(cell(500, GRD_OPAK_SERIAL_NUMBER), number(500));
}

TEST_F(PackageAdding, EndsAtARefusalAndTellsIt) {
  PackagePlan plan = boxes(3);
  plan.weight = "тяжёлая";
  const std::uint64_t before = digest();
  const AssistantReport report = addPackages(assistance, plan, {});
  EXPECT_EQ(report.done, 0);
  EXPECT_THAT(report.notDone,
              ElementsAre(NotDone{"Короб 1",
                                  "Неправильно количество в поле 'Вес упаковки кг (килограммы)'"}));
  EXPECT_EQ(addingWords(report),
            "Добавлено упаковок: 0 из 3.\r\n"
            "«Короб 1»: Неправильно количество в поле 'Вес упаковки кг (килограммы)'");
  EXPECT_EQ(packageCount(), 0);
  EXPECT_TRUE(form.takesInput());
  EXPECT_THAT(screen.boxes(), IsEmpty());
  EXPECT_EQ(history.toTakeBack(), nullptr) << "nothing was done";
  EXPECT_NE(before, digest()) << "the dialog's fields keep what was typed, as by hand";
  EXPECT_EQ(digestOfReplay(), digest());
  // The numbers wait for the next packages.
  EXPECT_EQ(addPackages(assistance, boxes(2), {}).done, 2);
  EXPECT_EQ(cell(1, GRD_OPAK_SERIAL_NUMBER), number(1));
  EXPECT_EQ(numbers.range()->next, 4U);
}

TEST_F(PackageAdding, EndsWhereTheNumbersEnd) {
  numbers.setRange({"3", "9520001", 1, 2, 1});
  const AssistantReport report = addPackages(assistance, boxes(4), {});
  EXPECT_EQ(report.done, 2);
  EXPECT_THAT(report.notDone,
              ElementsAre(NotDone{"Короб 3", "Не заполнено поле 'серийный номер'"}));
}

TEST_F(PackageAdding, WithoutNumbersAddsNone) {
  const AssistantReport report = addPackages({*face, control, history, nullptr}, boxes(4), {});
  EXPECT_EQ(report.done, 0);
  EXPECT_THAT(report.notDone,
              ElementsAre(NotDone{"Короб 1", "Не заполнено поле 'серийный номер'"}));
}

TEST_F(PackageAdding, RefusesAParentThatIsNotThere) {
  PackagePlan plan = boxes(1);
  plan.parent = 7;
  EXPECT_EQ(addPackages(assistance, plan, {}).notDone.size(), 1U);
  EXPECT_EQ(packageCount(), 0);
  EXPECT_FALSE(control.dlgSzczegoly.shown());
  EXPECT_TRUE(form.takesInput());
}

TEST_F(PackageAdding, StopsBetweenTwoPackages) {
  const AssistantReport report = addPackages(assistance, boxes(10), [](int done, int all) {
    EXPECT_EQ(all, 10);
    return done < 4;
  });
  EXPECT_TRUE(report.isStopped);
  EXPECT_EQ(report.done, 4);
  EXPECT_EQ(addingWords(report), "Добавлено упаковок: 4 из 10.");
  EXPECT_EQ(packageCount(), 4);
  EXPECT_EQ(digestOfReplay(), digest());
}

TEST_F(PackageAdding, ReplayedTakesNoNumbers) {
  addPackages(assistance, boxes(20), {});
  const NumberRange before = numbers.range().value();
  EXPECT_EQ(digestOfReplay(), digest());
  EXPECT_EQ(numbers.range()->next, before.next);
}

TEST_F(PackageAdding, WaitsForTheDiskOnceAtMost) {
  const int before = record.flushes;
  addPackages(assistance, boxes(20), {});
  EXPECT_LE(record.flushes, before + 1);
}

TEST_F(PackageAdding, IsTakenBackAsOneStepAndDoneAgain) {
  addPackages(assistance, pallet(), {});
  const std::uint64_t before = digest();
  addPackages(assistance, boxes(20), {});
  const std::uint64_t after = digest();
  EXPECT_EQ(digestOfReplay(), after);
  ASSERT_NE(history.toTakeBack(), nullptr);
  EXPECT_EQ(history.toTakeBack()->text, "добавление нескольких упаковок");
  history.takeBack();
  EXPECT_EQ(packageCount(), 1);
  EXPECT_EQ(digest(), before);
  EXPECT_EQ(digestOfReplay(), before);
  history.doAgain();
  EXPECT_EQ(digest(), after);
  EXPECT_EQ(digestOfReplay(), after);
}

TEST_F(PackageAdding, NumbersThatWereTakenBackAreNotGivenAgain) {
  addPackages(assistance, boxes(2), {});
  history.takeBack();
  addPackages(assistance, boxes(1), {});
  EXPECT_EQ(cell(1, GRD_OPAK_SERIAL_NUMBER), number(3));
  history.takeBack();
  history.doAgain();
  EXPECT_EQ(cell(1, GRD_OPAK_SERIAL_NUMBER), number(3)) << "it is the same package";
}

TEST_F(PackageAdding, OfFiveHundredBoxesTakesLessThanThreeSeconds) {
  addPackages(assistance, pallet(), {});
  PackagePlan plan = boxes(500);
  plan.parent = 0;
  // The processor's time, since other tests run beside this one.
  const std::clock_t start = std::clock();
  EXPECT_EQ(addPackages(assistance, plan, {}).done, 500);
  const double taken = static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
  RecordProperty("seconds", std::to_string(taken));
  EXPECT_LT(taken, 3.0);
}

}  // namespace
}  // namespace awizo::test
