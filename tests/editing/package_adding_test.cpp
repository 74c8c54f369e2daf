#include "support/control/desk.h"
#include "tables/upper/editing/package_commit.h"

namespace awizo::test {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

class AddingAPackage : public ::testing::Test, public Desk {
 protected:
  explicit AddingAPackage(const char* localeName = "ru_RU", const char* debugLevel = "")
      : Desk(localeName, debugLevel) {}

  void look(const std::function<void()>& act) {
    face.onModal([&](Form& shown) {
      act();
      shown.userClose();
    });
    form.btnDodajOpak.userClick();
  }
  const std::string& cell(int row, int col) const { return packages.cell(row, col); }
};

struct AddingAPackageInAPointLocale : AddingAPackage {
  AddingAPackageInAPointLocale() : AddingAPackage("en_US") {}
};

struct AddingAPackageWithALog : AddingAPackage {
  AddingAPackageWithALog() : AddingAPackage("ru_RU", "4") {}
};

TEST_F(AddingAPackage, TheDialogOpensForTheFirstPackage) {
  packageDialog.touch();
  for (TextField* field : {&packageDialog.txtPackageDesc, &packageDialog.txtPackageWeight,
                           &packageDialog.txtPackageWidth, &packageDialog.txtPackageHeight,
                           &packageDialog.txtPackageLength, &packageDialog.txtSerialNumberN}) {
    field->setText("old");
  }
  packageDialog.txtPackageDesc.setEnabled(false);
  packageDialog.cboxPackageType.setIndex(2);
  packageDialog.cboxILNLokalizacji.setText("old");
  packageDialog.cboxLokalizacja.setText("old");
  packageDialog.ParentSerial = "old";
  packageDialog.AddMode = false;
  look([&] {
    EXPECT_TRUE(packageDialog.AddMode);
    EXPECT_EQ(packageDialog.caption(), "Добавить упаковку");
    EXPECT_EQ(packageDialog.btnDodaj.caption(), "&Добавить");
    EXPECT_EQ(packageDialog.ParentSerial, "");
    EXPECT_EQ(packageDialog.lbIDValue.caption(), "2");
    EXPECT_EQ(packageDialog.lblIDLowValue.caption(), "1");
    EXPECT_EQ(packageDialog.lblLevelValue.caption(), "1");
    EXPECT_FALSE(packageDialog.cboxParentPackage.enabled());
    EXPECT_THAT(packageDialog.cboxParentPackage.rows(), ElementsAre(""));
    for (const TextField* field :
         {&packageDialog.txtPackageDesc, &packageDialog.txtPackageWeight,
          &packageDialog.txtPackageWidth, &packageDialog.txtPackageHeight,
          &packageDialog.txtPackageLength, &packageDialog.txtSerialNumberN}) {
      EXPECT_EQ(field->text(), "") << field->name();
    }
    EXPECT_TRUE(packageDialog.txtPackageDesc.enabled());
    EXPECT_EQ(packageDialog.cboxPackageType.text(), "Паллета");
    EXPECT_EQ(packageDialog.cboxILNLokalizacji.text(), "");
    EXPECT_EQ(packageDialog.cboxLokalizacja.text(), "");
    EXPECT_FALSE(form.enabled());
  });
  EXPECT_TRUE(form.enabled());
}

TEST_F(AddingAPackage, TheFirstPackageTakesTheEmptyRow) {
  addPackage({.description = "Поддон"});
  EXPECT_EQ(session.IloscPozycjiOpak, 1);
  EXPECT_EQ(packages.rows(), 2);
  EXPECT_EQ(form.LastPackageSerial, 2);
  EXPECT_EQ(TestEditor::row(packages, 1),
            (std::vector<std::string>{"1", "", "1", "Поддон", "1", "", "", "", "1", "09",
                                      "106141412345678908", "9520002000026", "", "2", ""}));
  EXPECT_EQ(packages.row(), 1);
  EXPECT_TRUE(packages.redraw());
  EXPECT_THAT(takeBoxes(), IsEmpty());
}

TEST_F(AddingAPackage, EveryFieldReachesItsColumn) {
  face.onModal([&] {
    type(PackageEntry{.description = "Поддон"});
    packageDialog.cboxPackageType.userChoose(2);
    packageDialog.txtPackageWeight.userType("1,5");
    packageDialog.txtPackageWidth.userType("2.25");
    packageDialog.txtPackageHeight.userType("3");
    packageDialog.txtPackageLength.userType("0,0005");
    packageDialog.btnDodaj.userClick();
  });
  form.btnDodajOpak.userClick();
  EXPECT_EQ(
      TestEditor::row(packages, 1),
      (std::vector<std::string>{"1", "", "1", "Поддон", "1", "1,500", "2,250", "3,000", "1", "PK",
                                "106141412345678908", "9520002000026", "0,001", "2", ""}));
}

TEST_F(AddingAPackageInAPointLocale, MeasuresAreWrittenWithAPoint) {
  face.onModal([&] {
    type(PackageEntry{.description = "Поддон"});
    packageDialog.txtPackageWeight.userType("1,5");
    packageDialog.btnDodaj.userClick();
  });
  form.btnDodajOpak.userClick();
  EXPECT_EQ(cell(1, GRD_OPAK_WEIGHT), "1.500");
}

TEST_F(AddingAPackage, APackageInAnotherLiesOneLevelDeeper) {
  addPackage({.description = "Поддон"});
  addPackage({.description = "Коробка", .parent = 0});
  addPackage({.description = "Пачка", .parent = 1});
  EXPECT_EQ(cell(2, GRD_OPAK_PARENT_SERIAL), "2");
  EXPECT_EQ(cell(2, GRD_OPAK_PARENT_DESC), "Поддон");
  EXPECT_EQ(cell(2, GRD_OPAK_LEVEL), "2");
  EXPECT_EQ(cell(3, GRD_OPAK_PARENT_SERIAL), "3");
  EXPECT_EQ(cell(3, GRD_OPAK_PARENT_DESC), "Коробка");
  EXPECT_EQ(cell(3, GRD_OPAK_LEVEL), "3");
  EXPECT_EQ(cell(3, GRD_OPAK_SERIAL), "4");
  EXPECT_EQ(cell(3, GRD_OPAK_ID_LOW), "3");
  EXPECT_EQ(cell(3, GRD_OPAK_LP), "3");
  EXPECT_EQ(packages.rows(), 4);
}

TEST_F(AddingAPackage, FurtherPackagesAreOfferedTheirParentsAndAnEmptyRow) {
  addPackage({.description = "Поддон"});
  addPackage({.description = "Коробка"});
  look([&] {
    EXPECT_THAT(packageDialog.cboxParentPackage.rows(), ElementsAre("Поддон", "Коробка", ""));
    EXPECT_EQ(packageDialog.cboxParentPackage.index(), -1);
    EXPECT_TRUE(packageDialog.cboxParentPackage.enabled());
    EXPECT_EQ(packageDialog.lblLevelValue.caption(), "");
    EXPECT_EQ(packageDialog.lbIDValue.caption(), "4");
    EXPECT_EQ(packageDialog.lblIDLowValue.caption(), "3");
  });
}

TEST_F(AddingAPackage, WithoutAParentItIsATopPackage) {
  addPackage({.description = "Поддон"});
  addPackage({.description = "Без выбора"});
  addPackage({.description = "Пустая строка", .parent = 2});
  for (const int row : {2, 3}) {
    EXPECT_EQ(cell(row, GRD_OPAK_PARENT_SERIAL), "1");
    EXPECT_EQ(cell(row, GRD_OPAK_PARENT_DESC), "");
    EXPECT_EQ(cell(row, GRD_OPAK_LEVEL), "1");
  }
}

TEST_F(AddingAPackage, AParentTakenBackLeavesATopPackage) {
  addPackage({.description = "Поддон"});
  face.onModal([&] {
    type(PackageEntry{.description = "Коробка", .parent = 0});
    packageDialog.cboxParentPackage.userChoose(1);
    packageDialog.btnDodaj.userClick();
  });
  form.btnDodajOpak.userClick();
  EXPECT_EQ(cell(2, GRD_OPAK_PARENT_SERIAL), "1");
  EXPECT_EQ(cell(2, GRD_OPAK_LEVEL), "1");
}

TEST_F(AddingAPackage, ACancelledDialogSpendsNoSerial) {
  addPackage({.description = "Поддон"});
  face.onModal([&](Form& shown) {
    type(PackageEntry{.description = "Коробка"});
    shown.userClose();
  });
  form.btnDodajOpak.userClick();
  EXPECT_EQ(session.IloscPozycjiOpak, 1);
  EXPECT_EQ(packages.rows(), 2);
  EXPECT_EQ(form.LastPackageSerial, 2);
  addPackage({.description = "Коробка"});
  EXPECT_EQ(cell(2, GRD_OPAK_SERIAL), "3");
}

TEST_F(AddingAPackage, TheTableIsPaintedAnewAlsoAfterACancelledDialog) {
  int painted = 0;
  packages.observers.add([&](const Change& change) { painted += change.aspect == Aspect::redraw; });
  look([] {});
  EXPECT_EQ(painted, 1);
}

TEST_F(AddingAPackage, ASerialIsNeverIssuedTwice) {
  addPackage({.description = "А"});
  addPackage({.description = "Б"});
  packages.userCell(2, GRD_OPAK_DESC);
  form.btnUsunOpak.userClick();
  addPackage({.description = "В"});
  EXPECT_THAT(column(packages, GRD_OPAK_SERIAL), ElementsAre("2", "4"));
  packages.userCell(1, GRD_OPAK_DESC);
  form.btnUsunOpak.userClick();
  addPackage({.description = "Г"});
  EXPECT_THAT(column(packages, GRD_OPAK_SERIAL), ElementsAre("4", "5"));
  // The row's number is the count, which the table has already here.
  EXPECT_THAT(column(packages, GRD_OPAK_LP), ElementsAre("2", "2"));
}

TEST_F(AddingAPackage, ADescriptionInUseIsRefused) {
  addPackage({.description = "Поддон"});
  face.onModal([&] {
    type(PackageEntry{.description = "ПОДДОН"});
    packageDialog.btnDodaj.userClick();
    packageDialog.btnZamknij.userClick();
  });
  form.btnDodajOpak.userClick();
  EXPECT_THAT(takeBoxes(),
              ElementsAre("VIRD|critical|OK|Данное значение поля 'Описание упаковки' уже "
                          "используется в системе"));
  EXPECT_EQ(session.IloscPozycjiOpak, 1);
}

/// A file brings rows that nobody counts: the new row is cut off with them, and the row after the
/// last counted one is used instead.
TEST_F(AddingAPackage, RowsBeyondThePackagesAreDropped) {
  addPackage({.description = "Поддон"});
  packages.setRows(6);
  packages.setCell(2, GRD_OPAK_LP, "7");
  addPackage({.description = "Коробка"});
  EXPECT_EQ(packages.rows(), 3);
  EXPECT_EQ(cell(2, GRD_OPAK_LP), "7");
  EXPECT_EQ(cell(2, GRD_OPAK_DESC), "Коробка");
  EXPECT_EQ(cell(2, GRD_OPAK_SERIAL), "3");
}

TEST_F(AddingAPackage, LinesAreCountedAnew) {
  putLines(2);
  lines.setCell(1, GRD_POZ_EAN, "ABC");
  addPackage({.description = "Поддон"});
  EXPECT_EQ(form.ValidLineCount, 1);
  EXPECT_EQ(totals.cell(1, GRD_SUMA_LINE_COUNT), "2");
}

TEST_F(AddingAPackage, ALevelThatIsNoNumberLeavesTheControlDisabled) {
  addPackage({.description = "Поддон"});
  packages.setCell(1, GRD_OPAK_LEVEL, "");
  form.btnDodajOpak.userClick();
  EXPECT_THAT(takeBoxes(),
              ElementsAre("Произошла ошибка в btnDodajOpak_Click()|critical|OK|Type mismatch"));
  EXPECT_FALSE(form.enabled());
  EXPECT_FALSE(packageDialog.shown());
  EXPECT_EQ(face.modalForms().size(), 1U);
}

TEST_F(AddingAPackage, TheLastReachableRowIsWrittenWhole) {
  putPackages(2182, [](int) { return 0; });
  addPackage({.description = "последняя"});
  EXPECT_EQ(session.IloscPozycjiOpak, 2183);
  EXPECT_EQ(cell(2183, GRD_OPAK_SERIAL), "2184");
  EXPECT_THAT(takeBoxes(), IsEmpty());
}

/// The flat index of row 2184 leaves 16 bits at column 8, which is written first.
TEST_F(AddingAPackage, TheRowPastTheLimitStaysEmpty) {
  putPackages(2183, [](int) { return 0; });
  addPackage({.description = "лишняя"});
  EXPECT_THAT(takeBoxes(),
              ElementsAre("Произошла ошибка в ZatwierdzPozycjeOpak()|critical|OK|Overflow"));
  EXPECT_EQ(session.IloscPozycjiOpak, 2184);
  EXPECT_EQ(packages.rows(), 2185);
  EXPECT_EQ(cell(2184, GRD_OPAK_LP), "2184");
  EXPECT_EQ(cell(2184, GRD_OPAK_DESC), "");
  EXPECT_EQ(form.LastPackageSerial, 2184);
  EXPECT_EQ(packages.row(), 1);
  EXPECT_FALSE(packages.redraw());
  EXPECT_TRUE(form.enabled());
}

TEST_F(AddingAPackage, BehindThatRowNoPackageCanBeAdded) {
  putPackages(2183, [](int) { return 0; });
  addPackage({.description = "лишняя"});
  takeBoxes();
  form.btnDodajOpak.userClick();
  EXPECT_THAT(takeBoxes(),
              ElementsAre("Произошла ошибка в btnDodajOpak_Click()|critical|OK|Overflow"));
  EXPECT_FALSE(form.enabled());
}

TEST_F(AddingAPackage, TheLastSerialOverflows) {
  form.LastPackageSerial = 32767;
  form.btnDodajOpak.userClick();
  EXPECT_THAT(takeBoxes(),
              ElementsAre("Произошла ошибка в btnDodajOpak_Click()|critical|OK|Overflow"));
}

TEST_F(AddingAPackage, ListsOfPackagesHoldOneElementMore) {
  PreparePackageArrays(editor);
  EXPECT_THAT(session.ParentSerials, ElementsAre(""));
  EXPECT_THAT(session.ParentLevels, ElementsAre(0));
  addPackage({.description = "Поддон"});
  addPackage({.description = "Коробка", .parent = 0});
  PreparePackageArrays(editor, "not used");
  EXPECT_THAT(session.ParentSerials, ElementsAre("2", "3", ""));
  EXPECT_THAT(session.ParentDescriptions, ElementsAre("Поддон", "Коробка", ""));
  EXPECT_THAT(session.ParentLevels, ElementsAre(1, 2, 0));
}

TEST_F(AddingAPackageWithALog, TheLogTellsThePackagesWithTheirLevels) {
  addPackage({.description = "Поддон"});
  closeNextForm();
  form.btnDodaj.userClick();
  EXPECT_THAT(logText(), HasSubstr("10:15 btnDodajOpak_Click: IloscPozycjiOpak = 0\r\n"));
  EXPECT_THAT(logText(),
              HasSubstr("10:15 btnDodajOpak_Click: IloscPozycjiOpak = 1\r\n21.11.2026 10:15 "
                        "btnDodajOpak_Click: i - 1 = 0, level =  1\r\n"));
}

TEST_F(AddingAPackage, PrepareParentsDoesNothing) {
  addPackage({.description = "Поддон"});
  const auto before = session.ParentSerials;
  PrepareParents("Поддон");
  EXPECT_EQ(session.ParentSerials, before);
}

}  // namespace
}  // namespace awizo::test
