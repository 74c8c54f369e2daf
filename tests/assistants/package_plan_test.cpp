#include "assistants/package_plan.h"

#include <gmock/gmock.h>

#include "support/control/desk.h"

namespace awizo::test {
namespace {

using ::testing::ElementsAre;

class PackagePlanTest : public ::testing::Test, public Desk {
 protected:
  PackagePlan plan(int count, const std::string& description) const {
    return {.count = count, .description = description};
  }
};

TEST_F(PackagePlanTest, CountsWhereTheMarkStands) {
  EXPECT_THAT(descriptionsOf(plan(3, "Короб №# верх"), editor),
              ElementsAre("Короб №1 верх", "Короб №2 верх", "Короб №3 верх"));
}

TEST_F(PackagePlanTest, CountsAtTheEndWithoutAMark) {
  EXPECT_THAT(descriptionsOf(plan(2, " Короб "), editor), ElementsAre("Короб 1", "Короб 2"));
  EXPECT_THAT(descriptionsOf(plan(1, "Паллета"), editor), ElementsAre("Паллета"));
}

TEST_F(PackagePlanTest, GoesOnFromWhatTheDocumentHas) {
  for (const char* description : {"КОРОБ 7", "Короб 3", "Короб 3а", "Ящик 12", "Короб"}) {
    addPackage({.description = description});
  }
  EXPECT_THAT(descriptionsOf(plan(2, "Короб #"), editor), ElementsAre("Короб 8", "Короб 9"));
  EXPECT_THAT(descriptionsOf(plan(1, "Ящик #"), editor), ElementsAre("Ящик 13"));
}

TEST_F(PackagePlanTest, RefusesWhatCantBe) {
  EXPECT_EQ(planRefusal(plan(1, "Короб"), editor), "");
  EXPECT_EQ(planRefusal(plan(0, "Короб"), editor), "Сколько упаковок добавить?");
  EXPECT_EQ(planRefusal(plan(1, "  "), editor), "Дайте упаковкам описание.");
  for (const char* bad : {"Короб $", "@", "a@b#"}) {
    EXPECT_EQ(planRefusal(plan(1, bad), editor), "В описании не может быть знаков $ и @.") << bad;
  }
}

TEST_F(PackagePlanTest, KnowsHowManyTheTableTakes) {
  EXPECT_EQ(roomForPackages(editor), 2183);
  putPackages(2180, [](int) { return 0; });
  EXPECT_EQ(planRefusal(plan(3, "Короб"), editor), "");
  EXPECT_EQ(planRefusal(plan(4, "Короб"), editor),
            "Столько упаковок в документ не поместится, можно ещё 3.");
}

TEST_F(PackagePlanTest, KnowsThatSerialsEnd) {
  form.LastPackageSerial = 32765;
  EXPECT_EQ(roomForPackages(editor), 2);
}

}  // namespace
}  // namespace awizo::test
