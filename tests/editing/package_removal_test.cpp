#include "support/control/desk.h"
#include "tables/upper/editing/package_subtree.h"

namespace awizo::test {
namespace {

using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

/// Whether every step is written to the log: the packages are then gone through in another way.
class RemovingAPackage : public ::testing::TestWithParam<const char*>, public Desk {
 protected:
  RemovingAPackage() : Desk("ru_RU", GetParam()) {}

  void remove(int row) {
    packages.userCell(row, GRD_OPAK_DESC);
    form.btnUsunOpak.userClick();
  }
  std::vector<std::string> serials() const { return column(packages, GRD_OPAK_SERIAL); }
  std::vector<std::string> subtree(std::int16_t row) {
    std::vector<std::string> found;
    GetPackagesRec(editor, row, found);
    return found;
  }
};

INSTANTIATE_TEST_SUITE_P(LogClosedAndOpen, RemovingAPackage, ::testing::Values("", "4"),
                         [](const auto& parameter) {
                           return std::string(*parameter.param == '\0' ? "LogClosed" : "LogOpen");
                         });

TEST_P(RemovingAPackage, WithoutPackagesNothingHappens) {
  form.btnUsunOpak.userClick();
  EXPECT_THAT(takeBoxes(), IsEmpty());
  EXPECT_THAT(face.cursors(), IsEmpty());
}

/// 2 holds 3 and 5, 3 holds 6; 4 is apart.
TEST_P(RemovingAPackage, ASubtreeIsFoundDepthFirstInTableOrder) {
  const std::vector<int> parents{0, 1, 0, 1, 2};
  putPackages(5, [&](int row) { return parents[static_cast<std::size_t>(row - 1)]; });
  EXPECT_THAT(subtree(1), ElementsAre("2", "3", "6", "5"));
  EXPECT_EQ(packages.row(), 5);
  EXPECT_THAT(subtree(2), ElementsAre("3", "6"));
  EXPECT_THAT(subtree(3), ElementsAre("4"));
}

TEST_P(RemovingAPackage, AParentMayStandBelowItsChildren) {
  const std::vector<int> parents{3, 1, 0};
  putPackages(3, [&](int row) { return parents[static_cast<std::size_t>(row - 1)]; });
  EXPECT_THAT(subtree(3), ElementsAre("4", "2", "3"));
}

TEST_P(RemovingAPackage, SerialsAreComparedAsWholeTexts) {
  putPackages(12, [](int row) { return row == 12 ? 11 : 0; });
  // Serial 12 is the parent; 2 and 1 are only parts of that text.
  EXPECT_THAT(subtree(1), ElementsAre("2"));
  EXPECT_THAT(subtree(11), ElementsAre("12", "13"));
}

TEST_P(RemovingAPackage, ThePackageGoesWithAllThatLieInIt) {
  const std::vector<int> parents{0, 1, 0, 1, 2};
  putPackages(5, [&](int row) { return parents[static_cast<std::size_t>(row - 1)]; });
  packages.setBackground(3, 1, pink);
  packages.setRowHeight(3, 480);
  remove(1);
  EXPECT_THAT(serials(), ElementsAre("4"));
  EXPECT_EQ(session.IloscPozycjiOpak, 1);
  EXPECT_EQ(packages.rows(), 2);
  EXPECT_EQ(packages.cell(1, GRD_OPAK_LP), "3");
  EXPECT_EQ(packages.look(1, 1).background, pink);
  EXPECT_EQ(packages.rowHeight(1), 480);
  EXPECT_EQ(form.LastPackageSerial, 6);
  EXPECT_EQ(packages.row(), 1);
  EXPECT_EQ(packages.column(), 1);
  EXPECT_TRUE(packages.redraw());
  EXPECT_THAT(face.cursors(),
              ElementsAre(Cursor::wait, Cursor::normal, Cursor::wait, Cursor::normal));
  EXPECT_THAT(takeBoxes(), IsEmpty());
}

TEST_P(RemovingAPackage, TheLastOneLeavesAnEmptyRow) {
  addPackage({.description = "Поддон"});
  remove(1);
  EXPECT_EQ(session.IloscPozycjiOpak, 0);
  EXPECT_EQ(packages.rows(), 2);
  EXPECT_THAT(TestEditor::row(packages, 1), Each(""));
  EXPECT_EQ(form.LastPackageSerial, 2);
  EXPECT_TRUE(packages.redraw());
}

/// The row that is emptied at the end is that of the last package found, with its look.
TEST_P(RemovingAPackage, AWholeTreeLeavesAnEmptyRow) {
  const std::vector<int> parents{0, 1, 1};
  putPackages(3, [&](int row) { return parents[static_cast<std::size_t>(row - 1)]; });
  packages.setRowHeight(3, 480);
  remove(1);
  EXPECT_EQ(session.IloscPozycjiOpak, 0);
  EXPECT_EQ(packages.rows(), 2);
  EXPECT_THAT(TestEditor::row(packages, 1), Each(""));
  EXPECT_EQ(packages.rowHeight(1), 480);
}

TEST_P(RemovingAPackage, EveryLineIsRewrittenWithoutItsReferences) {
  putPackages(2, [](int) { return 0; });
  putLines(5);
  const std::vector<std::string> before{"2@A@1@1,000$3@B@1@2,000", "3@B@1@2,000", "2@A@1@1,000", "",
                                        "3@B@1@2$2@A@1@1$12@C@1@0,5"};
  for (int i = 0; i < 5; ++i) {
    lines.setCell(i + 1, GRD_POZ_PACK_REFS, before[static_cast<std::size_t>(i)]);
    lines.setCell(i + 1, GRD_POZ_PACKED_QTY, "stale");
  }
  remove(1);
  EXPECT_THAT(column(lines, GRD_POZ_PACK_REFS),
              ElementsAre("3@B@1@2,000", "3@B@1@2,000", "", "", "3@B@1@2$12@C@1@0,5"));
  EXPECT_THAT(column(lines, GRD_POZ_PACKED_QTY),
              ElementsAre("2,000", "2,000", "0,000", "0,000", "2,500"));
  EXPECT_THAT(takeBoxes(), IsEmpty());
}

TEST_P(RemovingAPackage, AFaultyReferenceIsToldAndTheOtherLinesGoOn) {
  putPackages(2, [](int) { return 0; });
  putLines(3);
  lines.setCell(1, GRD_POZ_PACK_REFS, "2@A@1@1$$3@B@1@2");
  lines.setCell(2, GRD_POZ_PACK_REFS, "3@B@1@x");
  lines.setCell(3, GRD_POZ_PACK_REFS, "2@A@1@1");
  remove(1);
  EXPECT_THAT(takeBoxes(),
              ElementsAre("Произошла ошибка в RemoveOldPackRef|critical|OK|Subscript out of range",
                          "Произошла ошибка в GetPackedQuantity|critical|OK|Type mismatch"));
  EXPECT_THAT(column(lines, GRD_POZ_PACK_REFS), ElementsAre("", "3@B@1@x", ""));
  EXPECT_THAT(column(lines, GRD_POZ_PACKED_QTY), ElementsAre("0,000", "", "0,000"));
}

TEST_P(RemovingAPackage, APackageWhoseParentIsGoneIsNeverReached) {
  putPackages(3, [](int row) { return row == 3 ? 8 : 0; });
  remove(1);
  EXPECT_THAT(serials(), ElementsAre("3", "4"));
}

TEST_P(RemovingAPackage, ACircleOfTwoEndsWithoutAHang) {
  putPackages(3, [](int row) { return row == 1 ? 2 : 1; });
  remove(1);
  EXPECT_THAT(takeBoxes(),
              ElementsAre("Произошла ошибка в btnUsunOpak_Click()|critical|OK|Out of stack space"));
  EXPECT_EQ(session.IloscPozycjiOpak, 3);
  // The chain was followed one step further than there are packages: 1, 2, 1, 2.
  EXPECT_EQ(packages.row(), 2);
}

TEST_P(RemovingAPackage, AnOpenEditIsClosedFirst) {
  addPackage({.description = "Поддон"});
  putLines(1);
  lines.userCell(1, GRD_POZ_QTY_DESPATCHED);
  lines.userDoubleClick();
  form.txtEdycja.userType("4");
  form.btnUsunOpak.userClick();
  EXPECT_EQ(lines.cell(1, GRD_POZ_QTY_DESPATCHED), "4,000");
  EXPECT_FALSE(form.txtEdycja.visible());
  EXPECT_EQ(session.IloscPozycjiOpak, 0);
}

TEST_P(RemovingAPackage, ARowPastTheLimitStopsTheSearch) {
  putPackages(3, [](int) { return 0; });
  packages.setRows(2185);
  session.IloscPozycjiOpak = 2184;
  remove(1);
  EXPECT_THAT(takeBoxes(),
              ElementsAre("Произошла ошибка в btnUsunOpak_Click()|critical|OK|Overflow"));
  EXPECT_EQ(packages.row(), 2183);
  EXPECT_EQ(session.IloscPozycjiOpak, 2184);
  EXPECT_FALSE(packages.redraw());
  EXPECT_EQ(screen.cursor(), Cursor::wait);
}

/// The packages are gone by then, and the lines still refer to them.
TEST_P(RemovingAPackage, ALinePastTheLimitStopsTheCounting) {
  putPackages(2, [](int) { return 0; });
  putLines(1424);
  lines.setCell(1, GRD_POZ_PACK_REFS, "2@A@1@1");
  remove(1);
  EXPECT_THAT(takeBoxes(),
              ElementsAre("Произошла ошибка в btnUsunOpak_Click()|critical|OK|Overflow"));
  EXPECT_EQ(session.IloscPozycjiOpak, 1);
  EXPECT_EQ(lines.cell(1, GRD_POZ_PACK_REFS), "2@A@1@1");
  EXPECT_FALSE(packages.redraw());
  EXPECT_EQ(screen.cursor(), Cursor::normal);
}

TEST_P(RemovingAPackage, AHalfWrittenLinePastTheLimitStopsTheRewriting) {
  putPackages(2, [](int) { return 0; });
  putLines(1424);
  lines.setCell(1, GRD_POZ_PACK_REFS, "2@A@1@1");
  lines.setCell(1424, GRD_POZ_EAN, "");
  remove(1);
  EXPECT_THAT(takeBoxes(),
              ElementsAre("Произошла ошибка в btnUsunOpak_Click()|critical|OK|Overflow"));
  EXPECT_EQ(lines.cell(1, GRD_POZ_PACK_REFS), "");
  EXPECT_TRUE(packages.redraw());
  EXPECT_EQ(screen.cursor(), Cursor::wait);
}

/// A file brings rows without counting them; it may bring one serial several times.
TEST_P(RemovingAPackage, OfTwoRowsWithTheSameSerialTheFirstGoes) {
  putPackages(4, [](int row) { return row == 4 ? 1 : 0; });
  packages.setCell(3, GRD_OPAK_SERIAL, "2");
  remove(3);
  EXPECT_THAT(column(packages, GRD_OPAK_LP), ElementsAre("2", "3"));
  EXPECT_EQ(session.IloscPozycjiOpak, 2);
  EXPECT_THAT(takeBoxes(), IsEmpty());
}

/// The second and the third row have one serial, so that the fourth lies in both of them.
TEST_P(RemovingAPackage, APackageThatLiesInTwoIsRemovedOnce) {
  const std::vector<int> parents{0, 1, 1, 2};
  putPackages(4, [&](int row) { return parents[static_cast<std::size_t>(row - 1)]; });
  packages.setCell(3, GRD_OPAK_SERIAL, "3");
  EXPECT_THAT(subtree(1), ElementsAre("2", "3", "5", "3", "5"));
  packages.setRowHeight(3, 480);
  remove(1);
  EXPECT_THAT(takeBoxes(), IsEmpty());
  EXPECT_EQ(session.IloscPozycjiOpak, 0);
  EXPECT_EQ(packages.rows(), 2);
  EXPECT_THAT(TestEditor::row(packages, 1), Each(""));
  EXPECT_EQ(packages.rowHeight(1), 480);
}

TEST_P(RemovingAPackage, ARowThatNobodyCountedTakesThePackagesThatLieInIt) {
  putPackages(3, [](int row) { return row == 3 ? 0 : row + 1; });
  session.IloscPozycjiOpak = 2;
  EXPECT_THAT(subtree(3), ElementsAre("4", "3", "2"));
  remove(3);
  EXPECT_THAT(takeBoxes(), IsEmpty());
  EXPECT_EQ(session.IloscPozycjiOpak, 0);
}

TEST_P(RemovingAPackage, WithoutPackagesTheSearchFindsTheRowAlone) {
  EXPECT_THAT(subtree(1), ElementsAre(""));
}

/// A file brings rows without counting them.
TEST_P(RemovingAPackage, MoreCountedThanThereAreRowsIsAnError) {
  putPackages(3, [](int) { return 0; });
  packages.setRows(3);
  remove(1);
  EXPECT_THAT(
      takeBoxes(),
      ElementsAre("Произошла ошибка в btnUsunOpak_Click()|critical|OK|Subscript out of range"));
  EXPECT_EQ(packages.row(), 2);
  EXPECT_EQ(session.IloscPozycjiOpak, 3);
}

TEST_P(RemovingAPackage, MoreRowsThanCountedAreDroppedWithTheFirstRemoval) {
  putPackages(5, [](int) { return 0; });
  session.IloscPozycjiOpak = 3;
  remove(2);
  EXPECT_THAT(serials(), ElementsAre("2", "4"));
  EXPECT_EQ(session.IloscPozycjiOpak, 2);
}

TEST_P(RemovingAPackage, RowsThatNobodyCountedStay) {
  packages.setRows(4);
  packages.setCell(1, GRD_OPAK_ID_LOW, "7");
  remove(1);
  EXPECT_EQ(packages.rows(), 4);
  EXPECT_EQ(packages.cell(1, GRD_OPAK_ID_LOW), "7");
}

TEST(RemovingAPackageWithALog, EveryStepIsTold) {
  Desk desk("ru_RU", "4");
  desk.putPackages(2, [](int row) { return row - 1; });
  desk.putLines(1);
  desk.lines.setCell(1, GRD_POZ_PACK_REFS, "2@A@1@1");
  desk.form.btnUsunOpak.userClick();
  std::string told = desk.logText();
  const std::string time = "21.11.2026 10:15 ";
  told = told.substr(told.find(time + "GetPackagesRec"));
  std::string expected;
  for (const char* line :
       {"GetPackagesRec: currSerial = 2", "GetPackagesRec: GRD_OPAK_PARENT_SERIAL[1] = 1",
        "GetPackagesRec: GRD_OPAK_PARENT_SERIAL[2] = 2", "GetPackagesRec: currSerial = 3",
        "GetPackagesRec: GRD_OPAK_PARENT_SERIAL[1] = 1",
        "GetPackagesRec: GRD_OPAK_PARENT_SERIAL[2] = 2", "After GetPackagesRec",
        "delSerials.Count = 2", "delSerials[1] = 2", "delSerials[2] = 3",
        "Usun opak - wyczysc grd"}) {
    expected += time + line + "\r\n";
  }
  EXPECT_THAT(told, ::testing::StartsWith(expected));
  expected.clear();
  for (const char* line :
       {"Usuwanie opak - usuwanie ref przed m = 1", "RemoveOldPackRef - INPUT: 2@A@1@1",
        "RemoveOldPackRef - OUTPUT: ", "GetPackedQuantity - INPUT: ",
        "GetPackedQuantity - OUTPUT: 0", "Usuwanie opak - usuwanie ref po m = 1"}) {
    expected += time + line + "\r\n";
  }
  EXPECT_THAT(told, ::testing::EndsWith(expected));
}

/// Both ways leave the same table, whatever the tree.
TEST(RemovingAPackageEitherWay, GivesTheSameTable) {
  unsigned random = 20261121;
  const auto next = [&random](int below) {
    random = random * 1664525 + 1013904223;
    return static_cast<int>((random >> 8) % static_cast<unsigned>(below));
  };
  for (int run = 0; run < 25; ++run) {
    Desk closed;
    Desk open("ru_RU", "4");
    const int count = 1 + next(30);
    std::vector<int> parents(static_cast<std::size_t>(count) + 1);
    for (int row = 1; row <= count; ++row) {
      parents[static_cast<std::size_t>(row)] = next(row);
    }
    const int removed = 1 + next(count);
    for (Desk* desk : {&closed, &open}) {
      desk->putPackages(count, [&](int row) { return parents[static_cast<std::size_t>(row)]; });
      desk->packages.userCell(removed, GRD_OPAK_DESC);
      desk->form.btnUsunOpak.userClick();
    }
    ASSERT_EQ(closed.session.IloscPozycjiOpak, open.session.IloscPozycjiOpak);
    ASSERT_EQ(closed.packages.rows(), open.packages.rows());
    for (int row = 1; row < closed.packages.rows(); ++row) {
      ASSERT_EQ(TestEditor::row(closed.packages, row), TestEditor::row(open.packages, row));
    }
  }
}

}  // namespace
}  // namespace awizo::test
