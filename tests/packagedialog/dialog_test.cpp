#include "package_desk.h"

namespace awizo::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class PackageDialog : public ::testing::Test, public PackageDesk {};

TEST_F(PackageDialog, FieldsBearTheirCaptions) {
  EXPECT_EQ(dialog.cboxPackageType.caption(), "Тип упаковки:");
  EXPECT_EQ(dialog.txtPackageDesc.caption(), "Описание упаковки:");
  EXPECT_EQ(dialog.cboxParentPackage.caption(), "Внешняя упаковка:");
  EXPECT_EQ(dialog.lblLevelValue.heading(), "Уровень:");
  EXPECT_EQ(dialog.lbIDValue.heading(), "ID упаковки:");
  EXPECT_EQ(dialog.lblIDLowValue.heading(), "ID упаковки:");
  EXPECT_EQ(dialog.txtPackageWeight.caption(), "Вес упаковки кг (килограммы):");
  EXPECT_EQ(dialog.txtPackageLength.caption(), "Длина упаковки м (метры):");
  EXPECT_EQ(dialog.txtPackageWidth.caption(), "Ширина упаковки м (метры):");
  EXPECT_EQ(dialog.txtPackageHeight.caption(), "Высота упаковки м (метры):");
  EXPECT_EQ(dialog.txtSerialNumberN.caption(), "Серийный номер:");
  EXPECT_EQ(dialog.cboxILNLokalizacji.caption(), "ILN места доставки:");
  // The "o" at the end of the first word is a Latin letter.
  EXPECT_EQ(dialog.cboxLokalizacja.caption(), "Мест\x6F доставки:");
  EXPECT_EQ(dialog.btnDodaj.caption(), "&Добавить");
  EXPECT_EQ(dialog.btnZamknij.caption(), "&Назад");
}

TEST_F(PackageDialog, OffersThreeTypes) {
  EXPECT_THAT(dialog.cboxPackageType.rows(), ElementsAre("Паллета", "Коробка", "Возвратная тара"));
}

TEST_F(PackageDialog, LoadsOnce) {
  dialog.touch();
  EXPECT_EQ(dialog.cboxPackageType.count(), 3);
}

TEST_F(PackageDialog, LoadsAtTheFirstTouchAndNotBefore) {
  const DlgSzczegoly untouched(editor);
  EXPECT_EQ(untouched.cboxPackageType.count(), 0);
}

TEST_F(PackageDialog, AnErrorInLoadingIsTold) {
  DlgSzczegoly untouched(editor);
  untouched.cboxPackageType.observers.add([](const Change&) { throw errors::outOfMemory(); });
  untouched.touch();
  EXPECT_THAT(boxes(),
              ElementsAre("Произошла ошибка в Form_Load() (Opakowanie)|critical|OK|Out of memory"));
}

TEST_F(PackageDialog, TheFirstPackageIsATopPackage) {
  offerNoParents();
  dialog.PreparePackages(false);
  EXPECT_THAT(dialog.cboxParentPackage.rows(), IsEmpty());
  EXPECT_FALSE(dialog.cboxParentPackage.enabled());
  EXPECT_EQ(dialog.lblLevelValue.caption(), "1");
}

TEST_F(PackageDialog, AddingOffersEveryPackageAsParentAndShowsNoLevel) {
  offerParents();
  dialog.lblLevelValue.setCaption("5");
  dialog.cboxParentPackage.setEnabled(false);
  dialog.PreparePackages(false);
  EXPECT_THAT(dialog.cboxParentPackage.rows(), ElementsAre("Поддон", "Коробка"));
  EXPECT_EQ(dialog.cboxParentPackage.index(), -1);
  EXPECT_TRUE(dialog.cboxParentPackage.enabled());
  EXPECT_EQ(dialog.lblLevelValue.caption(), "");
}

TEST_F(PackageDialog, EditingOffersNoChoiceOfTheParentAndLeavesTheLevel) {
  offerParents();
  dialog.lblLevelValue.setCaption("5");
  dialog.PreparePackages(true);
  EXPECT_THAT(dialog.cboxParentPackage.rows(), ElementsAre("Поддон", "Коробка"));
  EXPECT_FALSE(dialog.cboxParentPackage.enabled());
  EXPECT_EQ(dialog.lblLevelValue.caption(), "5");
}

TEST_F(PackageDialog, ParentsAreOfferedAnewEachTime) {
  offerParents();
  dialog.PreparePackages(false);
  dialog.cboxParentPackage.setIndex(1);
  offerNoParents();
  dialog.PreparePackages(false);
  EXPECT_THAT(dialog.cboxParentPackage.rows(), IsEmpty());
  EXPECT_EQ(dialog.cboxParentPackage.text(), "");
}

TEST_F(PackageDialog, PickingAParentTakesItsSerialAndTheNextLevel) {
  offerParents();
  dialog.PreparePackages(false);
  show([&] { dialog.cboxParentPackage.userChoose(1); });
  EXPECT_EQ(dialog.ParentSerial, "7");
  EXPECT_EQ(dialog.lblLevelValue.caption(), "4");
}

TEST_F(PackageDialog, TheRowBehindThePackagesStandsForNoParent) {
  offerParents();
  dialog.PreparePackages(false);
  dialog.cboxParentPackage.addRow("");
  show([&] {
    dialog.cboxParentPackage.userChoose(0);
    dialog.cboxParentPackage.userChoose(2);
  });
  EXPECT_EQ(dialog.ParentSerial, "");
  EXPECT_EQ(dialog.lblLevelValue.caption(), "1");
}

TEST_F(PackageDialog, AParentOnTheLastPossibleLevelOverflows) {
  offerParents();
  session.ParentLevels = {32767, 3, 0};
  dialog.PreparePackages(false);
  show([&] { dialog.cboxParentPackage.userChoose(0); });
  EXPECT_THAT(boxes(), ElementsAre("VIRD|critical|OK|Overflow"));
  EXPECT_EQ(dialog.lblLevelValue.caption(), "");
  EXPECT_EQ(dialog.ParentSerial, "");
}

TEST_F(PackageDialog, AParentThatTheListsOfPackagesDontHoldIsAnError) {
  offerParents();
  dialog.PreparePackages(false);
  dialog.cboxParentPackage.addRow("");
  dialog.cboxParentPackage.addRow("too many");
  show([&] { dialog.cboxParentPackage.userChoose(3); });
  EXPECT_THAT(boxes(), ElementsAre("VIRD|critical|OK|Subscript out of range"));
}

TEST_F(PackageDialog, KnowsSerialsAndDescriptionsWithoutRegardToCase) {
  offerParents();
  session.ParentSerials = {"2a", "7", ""};
  EXPECT_TRUE(dialog.IsKnownSerial("7"));
  EXPECT_TRUE(dialog.IsKnownSerial("2A"));
  EXPECT_FALSE(dialog.IsKnownSerial("2"));
  EXPECT_TRUE(dialog.IsKnownDescription("поддон"));
  EXPECT_TRUE(dialog.IsKnownDescription("КОРОБКА"));
  EXPECT_FALSE(dialog.IsKnownDescription("Коробка "));
}

TEST_F(PackageDialog, TakesOtherFormsOfACharacterForOthers) {
  session.ParentDescriptions = {"Паллета №1", "Короб м²", ""};
  for (const char* other : {"Паллета No1", "Короб м2", "Короб м²\u00AD"}) {
    EXPECT_FALSE(dialog.IsKnownDescription(other)) << other;
  }
}

TEST_F(PackageDialog, TheElementForNoPackageIsNoPackage) {
  offerParents();
  EXPECT_FALSE(dialog.IsKnownSerial(""));
  EXPECT_FALSE(dialog.IsKnownDescription(""));
  session.ParentSerials.clear();
  EXPECT_FALSE(dialog.IsKnownSerial(""));
}

TEST_F(PackageDialog, AcceptingAValidPackageHidesTheDialog) {
  fillValid();
  face.onModal([&] {
    dialog.btnDodaj.userClick();
    EXPECT_FALSE(dialog.shown());
  });
  dialog.showModal();
  EXPECT_EQ(dialog.DialogResult, 1);
  EXPECT_THAT(boxes(), IsEmpty());
}

TEST_F(PackageDialog, AFaultyPackageKeepsTheDialogOpenWithTheFocusOnTheFault) {
  fillValid();
  dialog.txtSerialNumberN.setText("12");
  show([&] {
    dialog.btnDodaj.userClick();
    EXPECT_TRUE(dialog.shown());
    EXPECT_EQ(dialog.focus(), &dialog.txtSerialNumberN);
  });
  EXPECT_THAT(boxes(), ElementsAre("VIRD|critical|OK|Неправильный номер палеты"));
}

TEST_F(PackageDialog, ClosingChecksNothing) {
  dialog.DialogResult = 1;
  face.onModal([&] { dialog.btnZamknij.userClick(); });
  dialog.showModal();
  EXPECT_EQ(dialog.DialogResult, 0);
  EXPECT_THAT(boxes(), IsEmpty());
}

TEST_F(PackageDialog, TheWindowFrameAndEscapeClose) {
  dialog.DialogResult = 1;
  face.onModal([&] { dialog.userClose(); });
  dialog.showModal();
  EXPECT_EQ(dialog.DialogResult, 0);
  dialog.DialogResult = 1;
  face.onModal([&] { dialog.txtPackageDesc.userKey(27); });
  dialog.showModal();
  EXPECT_EQ(dialog.DialogResult, 0);
}

TEST_F(PackageDialog, EnterAcceptsWithoutTidyingTheFieldFirst) {
  fillValid();
  face.onModal([&] {
    dialog.txtPackageWeight.userType("1.5");
    dialog.txtPackageWeight.userKey(13);
  });
  dialog.showModal();
  EXPECT_EQ(dialog.DialogResult, 1);
  EXPECT_EQ(dialog.txtPackageWeight.text(), "1,500");
}

TEST_F(PackageDialog, FieldsKeepWhatTheyHeldToTheNextShowing) {
  show([&] { dialog.txtPackageDesc.userType("Поддон"); });
  show([&] { EXPECT_EQ(dialog.txtPackageDesc.text(), "Поддон"); });
}

TEST_F(PackageDialog, TheLogTellsHowParentsArePrepared) {
  session.log.OpenDebugLog("c:\\log", 4);
  offerParents();
  dialog.PreparePackages(false);
  show([&] { dialog.cboxParentPackage.userChoose(1); });
  const std::string log = files.bytes("c:\\log");
  const std::string time = "21.11.2026 10:15 ";
  EXPECT_THAT(log,
              ::testing::HasSubstr(time + "P1\r\n" + time + "cboxParentPackage.ListCount = 0\r\n" +
                                   time + "P2\r\n" + time + "P3\r\n"));
  EXPECT_THAT(log, ::testing::HasSubstr(time + "cboxParentPackage_Click: index = 1\r\n"));
}

TEST_F(PackageDialog, TheLogTellsHowManyParentsTheListHadBefore) {
  offerParents();
  dialog.PreparePackages(false);
  session.log.OpenDebugLog("c:\\log", 4);
  dialog.PreparePackages(false);
  EXPECT_THAT(files.bytes("c:\\log"), ::testing::HasSubstr("cboxParentPackage.ListCount = 2\r\n"));
}

}  // namespace
}  // namespace awizo::test
