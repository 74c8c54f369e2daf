#include "support/control/desk.h"

namespace awizo::test {
namespace {

using ::testing::ElementsAre;
using ::testing::SizeIs;

/// A user who watches when the tables are painted.
class Painting : public ::testing::Test, public Desk {
 protected:
  /// What a table reports while the user acts: "off" and "on" when its painting is switched,
  /// "refresh", and once for any number of changes "written", or "written in sight" where they were
  /// painted one by one.
  static std::vector<std::string> watch(Table& table, const std::function<void()>& act) {
    std::vector<std::string> told;
    bool painted = table.redraw();
    const int watching = table.observers.add([&](const Change& change) {
      std::string what;
      if (change.aspect == Aspect::redraw) {
        const std::string switched = table.redraw() ? "on" : "off";
        what = table.redraw() == painted ? "refresh" : switched;
        painted = table.redraw();
      } else if (change.aspect == Aspect::cell || change.aspect == Aspect::rows) {
        what = table.redraw() ? "written in sight" : "written";
        if (!told.empty() && told.back() == what) return;
      } else {
        return;
      }
      told.push_back(what);
    });
    act();
    table.observers.remove(watching);
    return told;
  }

  /// The flat index of row 1424 leaves 16 bits at the customs number: such a line can't be counted.
  void putALinePastTheLimit() { putLines(1424); }
};

TEST_F(Painting, AnAddedLineIsPaintedWhole) {
  for (const char* ean : {"1", "2"}) {
    EXPECT_THAT(watch(lines, [&] { addLine({.ean = ean}); }),
                ElementsAre("off", "written", "on", "refresh"));
  }
}

TEST_F(Painting, AnEditedLineIsPaintedWhole) {
  addLine({});
  lines.setBackground(1, 1, pink);
  EXPECT_THAT(
      watch(lines,
            [&] { editLine([&] { lineDialog.txtlEANProdWart.userType("4607000000208"); }); }),
      ElementsAre("off", "written", "on"));
}

TEST_F(Painting, AnAddedPackageIsPaintedWhole) {
  for (const char* description : {"Поддон", "Коробка"}) {
    EXPECT_THAT(watch(packages, [&] { addPackage({.description = description}); }),
                ElementsAre("off", "written", "on", "refresh"));
  }
}

TEST_F(Painting, AnEditedPackageIsPaintedWhole) {
  addPackage({.description = "Поддон"});
  packages.setBackground(1, 1, pink);
  EXPECT_THAT(
      watch(packages, [&] { editPackage([&] { packageDialog.txtPackageWeight.userType("7"); }); }),
      ElementsAre("off", "written", "on"));
}

TEST_F(Painting, ARemovedLineIsGoneAtTheFirstPainting) {
  for (const char* ean : {"1", "2"}) addLine({.ean = ean});
  for (int count = 2; count > 0; --count) {
    EXPECT_THAT(watch(lines, [&] { form.btnUsun.userClick(); }),
                ElementsAre("off", "written", "refresh", "on"));
  }
}

TEST_F(Painting, ARemovedPackageIsGoneAtTheFirstPainting) {
  addPackage({.description = "Поддон"});
  addPackage({.description = "Коробка"});
  for (int count = 2; count > 0; --count) {
    EXPECT_THAT(watch(packages, [&] { form.btnUsunOpak.userClick(); }),
                ElementsAre("off", "written", "refresh", "on"));
  }
}

// An error half-way ends the button's procedure: what is written stays, and nothing follows it.

TEST_F(Painting, ALineThatIsWrittenHalfWayIsNotPainted) {
  putLines(1423);
  EXPECT_THAT(watch(lines, [&] { addLine({.ean = "77"}); }), ElementsAre("off", "written"));
  EXPECT_THAT(takeBoxes(), SizeIs(1));
  EXPECT_TRUE(form.enabled()) << "it was enabled as the dialog closed";
}

TEST_F(Painting, AnEditThatFailsLeavesTheLineItsColourAndTheControlDisabled) {
  putALinePastTheLimit();
  lines.setBackground(1, 1, pink);
  EXPECT_THAT(
      watch(lines,
            [&] { editLine([&] { lineDialog.txtlEANProdWart.userType("4607000000208"); }); }),
      ElementsAre("off", "written"));
  EXPECT_THAT(takeBoxes(),
              ElementsAre("Произошла ошибка в ZatwierdzPozycje()|critical|OK|Overflow"));
  EXPECT_EQ(lines.cell(1, GRD_POZ_EAN), "4607000000208");
  EXPECT_EQ(lines.look(1, 1).background, pink);
  EXPECT_TRUE(lineDialog.txtIloscZam.enabled());
  EXPECT_FALSE(form.enabled());
}

TEST_F(Painting, APackageIsNotPaintedWhenTheLinesCantBeCounted) {
  putALinePastTheLimit();
  EXPECT_THAT(watch(packages, [&] { addPackage({.description = "Поддон"}); }),
              ElementsAre("off", "written"));
  EXPECT_THAT(takeBoxes(),
              ElementsAre("Произошла ошибка в ZatwierdzPozycjeOpak()|critical|OK|Overflow"));
  EXPECT_EQ(session.IloscPozycjiOpak, 1);
  EXPECT_EQ(form.LastPackageSerial, 2);
  EXPECT_TRUE(form.enabled());
}

TEST_F(Painting, AnEditThatFailsLeavesThePackageItsColourAndTheControlDisabled) {
  addPackage({.description = "Поддон"});
  packages.setBackground(1, 1, pink);
  putALinePastTheLimit();
  EXPECT_THAT(
      watch(packages, [&] { editPackage([&] { packageDialog.txtPackageWeight.userType("7"); }); }),
      ElementsAre("off", "written"));
  EXPECT_THAT(takeBoxes(),
              ElementsAre("Произошла ошибка в ZatwierdzPozycjeOpak()|critical|OK|Overflow"));
  EXPECT_EQ(packages.cell(1, GRD_OPAK_WEIGHT), "7,000");
  EXPECT_EQ(packages.look(1, 1).background, pink);
  EXPECT_FALSE(form.enabled());
}

TEST_F(Painting, TheNextChangeThatSucceedsShowsTheTablesAgain) {
  putLines(1423);
  addLine({.ean = "77"});
  addPackage({.description = "Поддон"});
  EXPECT_THAT(takeBoxes(), SizeIs(2));
  EXPECT_FALSE(lines.redraw());
  EXPECT_FALSE(packages.redraw());
  lines.userCell(1424, GRD_POZ_EAN);
  EXPECT_THAT(watch(lines, [&] { form.btnUsun.userClick(); }),
              ElementsAre("written", "refresh", "on"));
  EXPECT_THAT(watch(packages, [&] { addPackage({.description = "Коробка"}); }),
              ElementsAre("written", "on", "refresh"));
  EXPECT_THAT(column(packages, GRD_OPAK_DESC), ElementsAre("Поддон", "Коробка"));
}

}  // namespace
}  // namespace awizo::test
