#include "assistants/scanned_unit.h"

#include <gmock/gmock.h>

#include "assistants/packing_session.h"

namespace awizo::test {
namespace {

constexpr const char* tea = "4607000000116";

struct ScannedUnit : testing::Test, PackingSession {
  std::string scan(std::string_view ean = tea) { return packScannedUnit(assistance, ean); }
};

TEST_F(ScannedUnit, GoesIntoTheCurrentPackageAndIsToldWithWhatIsPacked) {
  addBox("Короб 1");
  addBox("Короб 2");
  addLine("Чай", "3");
  form.grdOpakowania.userRow(2);
  EXPECT_EQ(scan(), "Короб 2 ← Строка 1 (Чай), упаковано 1 из 3");
  EXPECT_EQ(references(1), "3@Короб 2@1@1,000");
}

TEST_F(ScannedUnit, MakesOneMoreOfWhatLiesThereAlready) {
  addBox("Короб 1");
  addBox("Короб 2");
  addLine("Чай", "4");
  form.grdOpakowania.userRow(1);
  scan();
  scan();
  form.grdOpakowania.userRow(2);
  scan();
  EXPECT_EQ(references(1), "2@Короб 1@1@2,000$3@Короб 2@1@1,000");
  form.grdOpakowania.userRow(1);
  scan();
  EXPECT_EQ(references(1), "3@Короб 2@1@1,000$2@Короб 1@1@3,000");
  EXPECT_EQ(packed(1), "4,000");
}

TEST_F(ScannedUnit, TakesARowOfItsOwnWhereTheDialogLetsNoMoreThrough) {
  addBox("Короб 1");
  addLine("Чай", "8.25");
  packByHand({.row = 1, .parts = {{.package = 0, .quantity = 7250}}}, {.packages = {1}});
  EXPECT_EQ(scan(), "Короб 1 ← Строка 1 (Чай), упаковано 8,25 из 8,25");
  EXPECT_EQ(references(1), "2@Короб 1@1@7,250$2@Короб 1@1@1,000");
}

TEST_F(ScannedUnit, GoesNoFurtherThanTheLine) {
  addBox("Короб 1");
  addLine("Чай", "1.5");
  scan();
  const std::vector<std::string> before = cells(form.grdPozycje);
  EXPECT_EQ(scan(), "Строка 1 (Чай): осталось 0,5: меньше единицы в упаковку не положить");
  EXPECT_EQ(cells(form.grdPozycje), before);
  addLine("Кофе", "1");
  scan();
  EXPECT_EQ(packed(2), "1,000");
  form.grdPozycje.userRow(2);
  EXPECT_EQ(scan(), "Строка 2 (Кофе): упаковано 1 из 1");
}

TEST_F(ScannedUnit, GoesToTheFirstLineOfItsEanThatHasAUnitLeft) {
  addBox("Короб 1");
  for (const char* name : {"Чай", "Чай"}) addLine(name, "1");
  form.grdPozycje.userRow(1);
  scan();
  EXPECT_EQ(packed(1), "1,000");
  scan();
  EXPECT_EQ(packed(2), "1,000");
  EXPECT_EQ(form.grdPozycje.row(), 2);
}

TEST_F(ScannedUnit, IsRefusedByTheControlsOwnWords) {
  addBox("Короб 1");
  addLine("Чай", "2");
  form.grdPozycje.setCell(1, GRD_POZ_PRICE, "дорого");
  const std::vector<std::string> before = cells(form.grdPozycje);
  EXPECT_EQ(scan(), "Строка 1 (Чай): Неправильно количество в поле 'Цена за единицу без НДС'");
  EXPECT_EQ(cells(form.grdPozycje), before);
}

TEST_F(ScannedUnit, OfNoLineOrIntoNoPackageIsTold) {
  EXPECT_EQ(scan("11111111"), "Нет строки с кодом 11111111");
  addLine("Чай", "2");
  EXPECT_EQ(scan(), "Положить некуда: в документе нет упаковок");
}

TEST_F(ScannedUnit, IsTakenBackAsOneStepAndReplayed) {
  addBox("Короб 1");
  addLine("Чай", "3");
  scan();
  const std::vector<std::string> before = cells(form.grdPozycje);
  scan();
  EXPECT_EQ(digestOfReplay(), digest());
  ASSERT_NE(history.toTakeBack(), nullptr);
  EXPECT_EQ(history.toTakeBack()->text, "единица товара в упаковку");
  history.takeBack();
  EXPECT_EQ(cells(form.grdPozycje), before);
}

}  // namespace
}  // namespace awizo::test
