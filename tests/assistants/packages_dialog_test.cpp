#include "assistants/packages_dialog.h"

#include <gmock/gmock.h>

#include "assistants/assisted_session.h"
#include "assistants/package_adding.h"

namespace awizo::test {
namespace {

struct PackagesDialogTest : testing::Test, AssistedSession {
  std::optional<PackagePlan> asked(const std::function<void()>& act) {
    screen.onModal([&] {
      act();
      if (dialog.shown()) dialog.btnClose.userClick();
    });
    return dialog.ask();
  }
  void add(const PackagePlan& plan) { addPackages(assistance, plan, {}); }

  PackagesDialog dialog{control.editor, &offer};
};

TEST_F(PackagesDialogTest, AsksForSomeBoxes) {
  const auto plan = asked([this] {
    EXPECT_EQ(dialog.focus(), &dialog.txtCount);
    EXPECT_EQ(dialog.lblExample.caption(), "");
    dialog.txtCount.userType("3");
    EXPECT_EQ(dialog.lblExample.caption(), "Коробка 1 … Коробка 3");
    EXPECT_EQ(dialog.lblNumbers.caption(), "осталось номеров: 10000");
    dialog.txtWeight.userType("1,5");
    dialog.txtPlace.userType("9520002000026");
    dialog.btnAdd.userClick();
  });
  ASSERT_TRUE(plan);
  EXPECT_EQ(plan->type, 1);
  EXPECT_EQ(plan->parent, -1);
  EXPECT_EQ(plan->count, 3);
  EXPECT_EQ(plan->weight, "1,5");
  add(*plan);
  EXPECT_EQ(packageCount(), 3);
  EXPECT_EQ(cell(3, GRD_OPAK_DESC), "Коробка 3");
  EXPECT_EQ(cell(3, GRD_OPAK_WEIGHT), "1,500");
}

TEST_F(PackagesDialogTest, OffersThePlaceOfTheLastPackageAndThePalletThatIsMarked) {
  form.lblILNMiejscaDostValue.setCaption("9520002000019");
  asked([this] { EXPECT_EQ(dialog.txtPlace.text(), "9520002000019"); });
  add({.type = 0, .description = "Паллета", .deliveryPlace = "9520002000026"});
  add({.type = 0, .description = "Другая", .deliveryPlace = "9520002000033"});
  form.grdOpakowania.userCell(1, GRD_OPAK_DESC);
  const auto plan = asked([this] {
    EXPECT_EQ(dialog.txtPlace.text(), "9520002000033");
    EXPECT_EQ(dialog.cboParent.text(), "Паллета");
    dialog.txtCount.userType("2");
    dialog.btnAdd.userClick();
  });
  ASSERT_TRUE(plan);
  add(*plan);
  EXPECT_EQ(cell(4, GRD_OPAK_PARENT_DESC), "Паллета");
  EXPECT_EQ(cell(4, GRD_OPAK_LEVEL), "2");
}

TEST_F(PackagesDialogTest, OffersTheTypesNameUntilTheUserTypesAnother) {
  asked([this] {
    EXPECT_EQ(dialog.txtDescription.text(), "Коробка #");
    dialog.cboType.userChoose(0);
    EXPECT_EQ(dialog.txtDescription.text(), "Паллета #");
    dialog.txtDescription.userType("Верх #");
    dialog.cboType.userChoose(1);
    EXPECT_EQ(dialog.txtDescription.text(), "Верх #");
  });
}

TEST_F(PackagesDialogTest, OffersBoxesForThePalletThatWasJustMade) {
  asked([this] {
    dialog.txtCount.userType("1");
    dialog.cboType.userChoose(0);
  });
  add({.type = 0, .description = "Паллета", .deliveryPlace = "9520002000026"});
  form.grdOpakowania.userCell(1, GRD_OPAK_DESC);
  asked([this] {
    EXPECT_EQ(dialog.cboParent.text(), "Паллета");
    EXPECT_EQ(dialog.cboType.text(), "Коробка");
    EXPECT_EQ(dialog.txtCount.text(), "");
    EXPECT_EQ(dialog.txtDescription.text(), "Коробка #");
  });
}

TEST_F(PackagesDialogTest, StaysWithAWordWhereItCantBe) {
  const auto plan = asked([this] {
    dialog.btnAdd.userClick();
    EXPECT_EQ(dialog.lblRefusal.caption(), "Сколько упаковок добавить?");
    dialog.txtCount.userType("3 шт");
    EXPECT_EQ(dialog.lblRefusal.caption(), "");
    dialog.btnAdd.userClick();
    EXPECT_EQ(dialog.lblRefusal.caption(), "Сколько упаковок добавить?");
    dialog.txtCount.userType("2184");
    dialog.btnAdd.userClick();
    EXPECT_EQ(dialog.lblRefusal.caption(),
              "Столько упаковок в документ не поместится, можно ещё 2183.");
    EXPECT_TRUE(dialog.shown());
  });
  EXPECT_FALSE(plan);
}

TEST_F(PackagesDialogTest, TellsThatNumbersAreMissing) {
  numbers.setRange({"3", "9520001", 1, 2, 1});
  asked([this] {
    dialog.txtCount.userType("3");
    EXPECT_EQ(dialog.lblNumbers.caption(), "Номеров не хватит: осталось 2.");
    store.texts.clear();
    dialog.txtCount.userType("2");
    EXPECT_EQ(dialog.lblNumbers.caption(),
              "Номера упаковок не заданы, а без номера упаковку не добавить.");
  });
}

TEST_F(PackagesDialogTest, IsNoPartOfTheRecord) {
  const std::size_t before = record.bytes.size();
  asked([this] { dialog.txtCount.userType("3"); });
  EXPECT_EQ(record.bytes.size(), before);
}

}  // namespace
}  // namespace awizo::test
