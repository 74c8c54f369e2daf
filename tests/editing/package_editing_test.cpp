#include "support/control/desk.h"

namespace awizo::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// A pallet with a box in it.
class EditingAPackage : public ::testing::Test, public Desk {
 protected:
  EditingAPackage() {
    addPackage({.description = "Поддон"});
    face.onModal([&] {
      type(PackageEntry{.description = "Коробка", .parent = 0});
      packageDialog.cboxPackageType.userChoose(1);
      packageDialog.txtPackageWeight.userType("1");
      packageDialog.txtPackageWidth.userType("2");
      packageDialog.txtPackageHeight.userType("3");
      packageDialog.txtPackageLength.userType("4");
      packageDialog.btnDodaj.userClick();
    });
    form.btnDodajOpak.userClick();
  }

  void look(const std::function<void()>& act) {
    face.onModal([&](Form& shown) {
      act();
      shown.userClose();
    });
    form.btnEdytujOpak.userClick();
  }
  const std::string& cell(int row, int col) const { return packages.cell(row, col); }
};

TEST(EditingNoPackage, DoesNothing) {
  Desk desk;
  desk.form.btnEdytujOpak.userClick();
  EXPECT_THAT(desk.face.modalForms(), IsEmpty());
  EXPECT_THAT(desk.takeBoxes(), IsEmpty());
  EXPECT_TRUE(desk.form.enabled());
}

TEST_F(EditingAPackage, EveryCellReachesItsField) {
  look([&] {
    EXPECT_FALSE(packageDialog.AddMode);
    EXPECT_EQ(packageDialog.caption(), "Изменить упаковку");
    EXPECT_EQ(packageDialog.btnDodaj.caption(), "&Подтвердить");
    EXPECT_EQ(packageDialog.ParentSerial, "2");
    EXPECT_THAT(packageDialog.cboxParentPackage.rows(), ElementsAre("Поддон", "Коробка"));
    EXPECT_EQ(packageDialog.cboxParentPackage.text(), "Поддон");
    EXPECT_FALSE(packageDialog.cboxParentPackage.enabled());
    EXPECT_EQ(packageDialog.lblLevelValue.caption(), "2");
    EXPECT_EQ(packageDialog.lbIDValue.caption(), "3");
    EXPECT_EQ(packageDialog.lblIDLowValue.caption(), "2");
    EXPECT_EQ(packageDialog.txtPackageDesc.text(), "Коробка");
    EXPECT_FALSE(packageDialog.txtPackageDesc.enabled());
    EXPECT_EQ(packageDialog.txtPackageWeight.text(), "1,000");
    EXPECT_EQ(packageDialog.txtPackageWidth.text(), "2,000");
    EXPECT_EQ(packageDialog.txtPackageHeight.text(), "3,000");
    EXPECT_EQ(packageDialog.txtPackageLength.text(), "4,000");
    EXPECT_EQ(packageDialog.cboxPackageType.text(), "Коробка");
    EXPECT_EQ(packageDialog.txtSerialNumberN.text(), "106141412345678908");
    EXPECT_EQ(packageDialog.cboxILNLokalizacji.text(), "9520002000026");
    EXPECT_FALSE(form.enabled());
  });
  EXPECT_TRUE(form.enabled());
}

TEST_F(EditingAPackage, ATopPackageHasNoParentInTheList) {
  packages.userCell(1, GRD_OPAK_DESC);
  editPackage([&] {
    EXPECT_EQ(packageDialog.cboxParentPackage.index(), -1);
    EXPECT_EQ(packageDialog.ParentSerial, "1");
    EXPECT_EQ(packageDialog.lblLevelValue.caption(), "1");
  });
  EXPECT_EQ(cell(1, GRD_OPAK_PARENT_SERIAL), "1");
  EXPECT_EQ(cell(1, GRD_OPAK_PARENT_DESC), "");
  EXPECT_EQ(cell(1, GRD_OPAK_LEVEL), "1");
}

TEST_F(EditingAPackage, ConfirmingWithoutAChangeWritesTheSameRow) {
  const auto before = TestEditor::row(packages, 2);
  editPackage([] {});
  EXPECT_EQ(TestEditor::row(packages, 2), before);
  EXPECT_EQ(form.LastPackageSerial, 3);
  EXPECT_EQ(session.IloscPozycjiOpak, 2);
  EXPECT_THAT(takeBoxes(), IsEmpty());
}

TEST_F(EditingAPackage, MeasuresTypeSerialNumberAndPlaceCanChange) {
  editPackage([&] {
    packageDialog.cboxPackageType.userChoose(0);
    packageDialog.txtPackageWeight.userType("1,5");
    packageDialog.txtPackageWidth.userType("");
    packageDialog.txtPackageHeight.userType("0.5");
    packageDialog.txtPackageLength.userType("9");
    packageDialog.txtSerialNumberN.userType("100000000000000007");
    packageDialog.cboxILNLokalizacji.userType("9520002000033");
  });
  EXPECT_EQ(
      TestEditor::row(packages, 2),
      (std::vector<std::string>{"2", "Поддон", "2", "Коробка", "2", "1,500", "", "0,500", "2", "09",
                                "100000000000000007", "9520002000033", "9,000", "3", ""}));
}

TEST_F(EditingAPackage, LinesAndTheirReferencesStay) {
  putLines(1);
  lines.setCell(1, GRD_POZ_PACK_REFS, "3@Коробка@2@1,000");
  lines.setCell(1, GRD_POZ_PACKED_QTY, "1,000");
  editPackage([&] { packageDialog.txtPackageWeight.userType("7"); });
  EXPECT_EQ(lines.cell(1, GRD_POZ_PACK_REFS), "3@Коробка@2@1,000");
  EXPECT_EQ(lines.cell(1, GRD_POZ_PACKED_QTY), "1,000");
  EXPECT_EQ(form.ValidLineCount, 1);
}

TEST_F(EditingAPackage, ACancelledDialogChangesNothing) {
  const auto before = TestEditor::row(packages, 2);
  look([&] { packageDialog.txtPackageWeight.userType("7"); });
  EXPECT_EQ(TestEditor::row(packages, 2), before);
}

TEST_F(EditingAPackage, ACommittedRowIsWhite) {
  for (int i = 0; i <= 14; ++i) packages.setBackground(2, i, pink);
  editPackage([] {});
  EXPECT_EQ(packages.look(2, 0).background, pink);
  for (int i = 1; i <= 13; ++i) EXPECT_EQ(packages.look(2, i).background, white) << i;
  EXPECT_EQ(packages.look(2, 14).background, pink);
  EXPECT_TRUE(packages.redraw());
}

TEST_F(EditingAPackage, AnUnknownTypeHasToBeChosenAnew) {
  packages.setCell(2, GRD_OPAK_TYPE, "XX");
  face.onModal([&] {
    EXPECT_EQ(packageDialog.cboxPackageType.index(), -1);
    packageDialog.btnDodaj.userClick();
    packageDialog.cboxPackageType.userChoose(1);
    packageDialog.btnDodaj.userClick();
  });
  form.btnEdytujOpak.userClick();
  EXPECT_THAT(takeBoxes(),
              ElementsAre("VIRD|critical|OK|В поле 'Тип упаковки' не указана величина"));
  EXPECT_EQ(cell(2, GRD_OPAK_TYPE), "201");
}

TEST_F(EditingAPackage, ThePlaceOfTheILNIsShown) {
  session.LocalizationsLoaded = session.LocalizationsDom->loadText(
      "<dictionary-response><document-content><Document-LocalizationsCatalog><localizations>"
      "<localization><number>А</number><iln>9520002000026</iln></localization>"
      "<localization><number>Б</number><iln>9520002000033</iln></localization>"
      "<localization><number>Я</number><iln>9</iln></localization></localizations>"
      "</Document-LocalizationsCatalog></document-content></dictionary-response>");
  packageDialog.LocalizationsFilled = false;
  look([&] {
    // The lists are filled as the dialog shows for the first time, after the ILN was set.
    EXPECT_EQ(packageDialog.cboxLokalizacja.text(), "");
    EXPECT_EQ(packageDialog.cboxILNLokalizacji.text(), "9520002000026");
  });
  look([&] {
    EXPECT_EQ(packageDialog.cboxLokalizacja.text(), "А");
    EXPECT_EQ(packageDialog.cboxILNLokalizacji.text(), "9520002000026");
  });
}

TEST_F(EditingAPackage, AnErrorLeavesTheControlDisabled) {
  packages.setCell(1, GRD_OPAK_LEVEL, "high");
  form.btnEdytujOpak.userClick();
  EXPECT_THAT(takeBoxes(),
              ElementsAre("Произошла ошибка в btnEdytujOpak_Click()|critical|OK|Type mismatch"));
  EXPECT_FALSE(form.enabled());
  EXPECT_EQ(face.modalForms().size(), 2U);
}

TEST_F(EditingAPackage, ARowPastTheLimitCantBeOpened) {
  putPackages(2184, [](int) { return 0; });
  packages.setRow(2184);
  form.btnEdytujOpak.userClick();
  EXPECT_THAT(takeBoxes(),
              ElementsAre("Произошла ошибка в btnEdytujOpak_Click()|critical|OK|Overflow"));
  EXPECT_FALSE(form.enabled());
}

TEST(EditingAPackageWithALog, ThePackagesAreListedTwiceBeforeTheDialogOpens) {
  Desk desk("ru_RU", "4");
  desk.putPackages(1, [](int) { return 0; });
  std::string before;
  desk.face.onModal([&](Form& shown) {
    before = desk.logText();
    shown.userClose();
  });
  desk.form.btnEdytujOpak.userClick();
  const std::string listed = "btnDodajOpak_Click: IloscPozycjiOpak = 1\r\n";
  const auto first = before.find(listed);
  ASSERT_NE(first, std::string::npos);
  EXPECT_NE(before.find(listed, first + 1), std::string::npos);
}

/// The check of a new description cuts its spaces, the table doesn't: so two packages can end up
/// with the same description.
class EqualDescriptions : public EditingAPackage {
 protected:
  EqualDescriptions() {
    addPackage({.description = "Ящик "});
    addPackage({.description = "Ящик ", .parent = 2});
  }
};

TEST_F(EqualDescriptions, AreBothTaken) {
  EXPECT_THAT(column(packages, GRD_OPAK_DESC), ElementsAre("Поддон", "Коробка", "Ящик ", "Ящик "));
  EXPECT_EQ(cell(4, GRD_OPAK_PARENT_SERIAL), "4");
  EXPECT_THAT(takeBoxes(), IsEmpty());
}

TEST_F(EqualDescriptions, TheLastOneBecomesTheParentAtAnEdit) {
  editPackage([&] {
    EXPECT_EQ(packageDialog.cboxParentPackage.index(), 3);
    EXPECT_EQ(packageDialog.ParentSerial, "5");
    // The level is taken from the row after the parent was selected.
    EXPECT_EQ(packageDialog.lblLevelValue.caption(), "2");
  });
  EXPECT_EQ(cell(4, GRD_OPAK_SERIAL), "5");
  EXPECT_EQ(cell(4, GRD_OPAK_PARENT_SERIAL), "5");
  EXPECT_EQ(cell(4, GRD_OPAK_LEVEL), "2");
  EXPECT_THAT(takeBoxes(), IsEmpty());
}

TEST_F(EqualDescriptions, APackageThatLiesInItselfCantBeRemoved) {
  editPackage([] {});
  packages.userCell(4, GRD_OPAK_DESC);
  form.btnUsunOpak.userClick();
  EXPECT_THAT(takeBoxes(),
              ElementsAre("Произошла ошибка в btnUsunOpak_Click()|critical|OK|Out of stack space"));
  EXPECT_EQ(session.IloscPozycjiOpak, 4);
  EXPECT_EQ(packages.rows(), 5);
  EXPECT_EQ(packages.row(), 4);
  EXPECT_FALSE(packages.redraw());
  EXPECT_EQ(screen.cursor(), Cursor::wait);
  EXPECT_TRUE(form.enabled());
}

TEST_F(EqualDescriptions, PackagesBesideItCanBeRemoved) {
  editPackage([] {});
  packages.userCell(1, GRD_OPAK_DESC);
  form.btnUsunOpak.userClick();
  EXPECT_THAT(takeBoxes(), IsEmpty());
  EXPECT_THAT(column(packages, GRD_OPAK_SERIAL), ElementsAre("4", "5"));
}

}  // namespace
}  // namespace awizo::test
