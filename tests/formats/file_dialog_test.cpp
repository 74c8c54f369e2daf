#include "formats/file_dialog.h"

#include "platform/forms/keys.h"
#include "support/test_editor.h"

namespace awizo::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

struct FileDialog : ::testing::Test {
  TestEditor test;
  DlgWczytajZapisz dialog{test.screen, test.files, test.settings, test.session};
  const std::string& chosen = test.session.LastFilePath;

  FileDialog() {
    test.files.put("c:\\root.xml", "r");
    test.files.put("c:\\home\\anna\\a.xml", "a");
    test.files.put("c:\\home\\anna\\B.XML", "b");
    test.files.put("c:\\home\\anna\\notes.txt", "n");
    test.session.LastFilePath = "earlier";
  }

  /// Shows the dialog, in the mode that was set up, to a user who does this.
  void show(std::function<void()> act) {
    test.face.onModal(std::move(act));
    dialog.showModal();
    EXPECT_FALSE(dialog.shown());
  }

  std::string setting() { return test.settings.values["VIRD\\VirdActiveX\\OffLinePath"]; }
};

TEST_F(FileDialog, StandsAsDesignedUntilItIsTouched) {
  EXPECT_EQ(dialog.btnWczytaj.caption(), "&Wczytaj");
  EXPECT_EQ(dialog.txtAwizoPlik.text(), "faktura.xml");
  EXPECT_EQ(dialog.DirList.path(), "");
}

TEST_F(FileDialog, LoadsInTheRootFolderWithNoFileName) {
  dialog.touch();
  EXPECT_EQ(dialog.Drive.drive(), "c:");
  EXPECT_EQ(dialog.DirList.path(), "c:\\");
  EXPECT_THAT(dialog.FileList.rows(), ElementsAre("root.xml"));
  EXPECT_EQ(dialog.txtAwizoPlik.text(), "");
  EXPECT_EQ(dialog.lblOffLinePath.text(), "c:\\VIRD");
}

TEST_F(FileDialog, LoadsOnce) {
  dialog.setUpForSaving("a.xml");
  dialog.DirList.setPath("c:\\home");
  dialog.touch();
  EXPECT_EQ(dialog.DirList.path(), "c:\\home");
  EXPECT_EQ(dialog.txtAwizoPlik.text(), "a.xml");
}

TEST_F(FileDialog, AnErrorOfItsLoadingIsShown) {
  test.files.failReading("c:\\", errors::permissionDenied());
  dialog.touch();
  // The folder list goes there all the same, and the file list can't follow.
  EXPECT_THAT(describe(test.face.boxes()), ElementsAre("VIRD|critical|OK|Permission denied"));
}

TEST_F(FileDialog, ForReading) {
  dialog.setUpForReading();
  EXPECT_EQ(dialog.caption(), "Прочитать подтверждение отгрузки.");
  EXPECT_EQ(dialog.btnWczytaj.caption(), "&Wczytaj");
  EXPECT_TRUE(dialog.ImageWczytaj.visible());
  EXPECT_FALSE(dialog.ImageZapisz.visible());
  EXPECT_FALSE(dialog.txtAwizoPlik.visible());
  EXPECT_FALSE(dialog.lblOffLinePath.visible());
  EXPECT_FALSE(dialog.btnWczytaj.visible());
  EXPECT_EQ(chosen, "");
}

TEST_F(FileDialog, ForSaving) {
  dialog.setUpForSaving("имя.xml");
  EXPECT_EQ(dialog.caption(), "Записать подтверждение отгрузки");
  EXPECT_EQ(dialog.btnWczytaj.caption(), "&Zapisz");
  EXPECT_FALSE(dialog.ImageWczytaj.visible());
  EXPECT_TRUE(dialog.ImageZapisz.visible());
  EXPECT_TRUE(dialog.txtAwizoPlik.visible());
  EXPECT_FALSE(dialog.lblOffLinePath.visible());
  EXPECT_FALSE(dialog.btnWczytaj.visible());
  EXPECT_EQ(dialog.txtAwizoPlik.text(), "имя.xml");
  EXPECT_EQ(chosen, "");
}

TEST_F(FileDialog, ForTheFolderOfOffLineWork) {
  dialog.setUpForOffLineFolder();
  EXPECT_EQ(dialog.caption(), "Папка для автономной работы");
  EXPECT_EQ(dialog.btnWczytaj.caption(), "&Ustaw");
  EXPECT_TRUE(dialog.ImageWczytaj.visible());
  EXPECT_FALSE(dialog.ImageZapisz.visible());
  EXPECT_FALSE(dialog.txtAwizoPlik.visible());
  EXPECT_TRUE(dialog.lblOffLinePath.visible());
  EXPECT_FALSE(dialog.btnWczytaj.visible());
  EXPECT_EQ(chosen, "");
}

TEST_F(FileDialog, TheFolderProposedStandsUnderTheFolderShown) {
  dialog.setUpForOffLineFolder();
  show([&] {
    dialog.DirList.userOpen("c:\\home\\anna");
    EXPECT_EQ(dialog.lblOffLinePath.text(), "c:\\home\\anna\\VIRD");
    dialog.DirList.userOpen("c:\\");
    EXPECT_EQ(dialog.lblOffLinePath.text(), "c:\\VIRD");
    dialog.ImageZamknij.userClick();
  });
}

TEST_F(FileDialog, TheFileListFollowsTheFolderAndShowsXmlAlone) {
  dialog.setUpForReading();
  show([&] {
    dialog.DirList.userOpen("c:\\home\\anna");
    EXPECT_THAT(dialog.FileList.rows(), ElementsAre("B.XML", "a.xml"));
    dialog.ImageZamknij.userClick();
  });
}

TEST_F(FileDialog, AnotherDriveLeadsTheFolderListThere) {
  dialog.setUpForReading();
  dialog.DirList.setPath("c:\\home");
  dialog.Drive.onChange();
  EXPECT_EQ(dialog.DirList.path(), "c:\\");
}

TEST_F(FileDialog, AClickOnAFileTakesItsName) {
  dialog.setUpForSaving("proposed.xml");
  show([&] {
    dialog.FileList.userChoose(0);
    EXPECT_EQ(dialog.txtAwizoPlik.text(), "root.xml");
    dialog.ImageZamknij.userClick();
  });
}

TEST_F(FileDialog, ShowingItReadsTheFolderAnew) {
  dialog.setUpForReading();
  test.files.put("c:\\later.xml", "l");
  show([&] {
    EXPECT_THAT(dialog.FileList.rows(), ElementsAre("later.xml", "root.xml"));
    dialog.ImageZamknij.userClick();
  });
}

TEST_F(FileDialog, ReadingTakesTheSelectedFile) {
  dialog.setUpForReading();
  show([&] {
    dialog.DirList.userOpen("c:\\home\\anna");
    dialog.FileList.userChoose(1);
    dialog.ImageWczytaj.userClick();
  });
  EXPECT_EQ(chosen, "c:\\home\\anna\\a.xml");
}

TEST_F(FileDialog, ReadingInARootDoublesNoBackslash) {
  dialog.setUpForReading();
  show([&] {
    dialog.FileList.userChoose(0);
    dialog.ImageWczytaj.userClick();
  });
  EXPECT_EQ(chosen, "c:\\root.xml");
}

TEST_F(FileDialog, ADoubleClickOnAFileAcceptsIt) {
  dialog.setUpForReading();
  show([&] {
    dialog.FileList.userChoose(0);
    dialog.FileList.userDoubleClick();
  });
  EXPECT_EQ(chosen, "c:\\root.xml");
}

/// The click comes first, so its name replaces the proposed and the typed one.
TEST_F(FileDialog, ADoubleClickOnAFileSavesUnderItsName) {
  dialog.setUpForSaving("proposed.xml");
  show([&] {
    dialog.FileList.userChoose(0);
    dialog.txtAwizoPlik.userType("typed.xml");
    dialog.FileList.userDoubleClick();
  });
  EXPECT_EQ(dialog.txtAwizoPlik.text(), "root.xml");
  EXPECT_EQ(chosen, "c:\\root.xml");
}

TEST_F(FileDialog, ReadingWithNoFileSelectedChoosesNothing) {
  dialog.setUpForReading();
  show([&] { dialog.ImageWczytaj.userClick(); });
  EXPECT_EQ(chosen, "");
}

TEST_F(FileDialog, SavingTakesTheNameInTheFolderShown) {
  dialog.setUpForSaving("новое.xml");
  show([&] {
    dialog.DirList.userOpen("c:\\home\\anna");
    dialog.ImageZapisz.userClick();
  });
  EXPECT_EQ(chosen, "c:\\home\\anna\\новое.xml");
}

TEST_F(FileDialog, SavingInARootDoublesNoBackslashAndAddsNoEnding) {
  dialog.setUpForSaving("");
  show([&] {
    dialog.txtAwizoPlik.userType("name");
    dialog.ImageZapisz.userClick();
  });
  EXPECT_EQ(chosen, "c:\\name");
}

TEST_F(FileDialog, SavingTakesAWholePathAsItStands) {
  for (const char* path : {"c:\\home\\x.xml", "sub\\x.xml", "/home/anna/x.xml"}) {
    dialog.setUpForSaving("proposed.xml");
    show([&] {
      dialog.txtAwizoPlik.userType(path);
      dialog.ImageZapisz.userClick();
    });
    EXPECT_EQ(chosen, path);
  }
}

TEST_F(FileDialog, ASlashInsideANameMakesNoWholePath) {
  dialog.setUpForSaving("sub/x.xml");
  show([&] { dialog.ImageZapisz.userClick(); });
  EXPECT_EQ(chosen, "c:\\sub/x.xml");
}

TEST_F(FileDialog, SavingWithoutANameChoosesNothing) {
  dialog.setUpForSaving("");
  show([&] { dialog.ImageZapisz.userClick(); });
  EXPECT_EQ(chosen, "");
}

TEST_F(FileDialog, ClosingLeavesTheChoiceAsItWas) {
  dialog.setUpForReading();
  test.session.LastFilePath = "untouched";
  show([&] {
    dialog.FileList.userChoose(0);
    dialog.ImageZamknij.userClick();
  });
  EXPECT_EQ(chosen, "untouched");
}

TEST_F(FileDialog, TheWindowFrameAndEscapeCloseIt) {
  dialog.setUpForReading();
  show([&] {
    dialog.FileList.userChoose(0);
    dialog.userClose();
  });
  EXPECT_EQ(chosen, "");
  show([&] {
    dialog.FileList.userChoose(0);
    dialog.FileList.userKey(keys::escape);
  });
  EXPECT_EQ(chosen, "");
}

TEST_F(FileDialog, EnterAcceptsInEveryMode) {
  dialog.setUpForReading();
  show([&] {
    dialog.FileList.userChoose(0);
    dialog.FileList.userKey(keys::enter);
  });
  EXPECT_EQ(chosen, "c:\\root.xml");
  dialog.setUpForSaving("x.xml");
  show([&] { dialog.txtAwizoPlik.userKey(keys::enter); });
  EXPECT_EQ(chosen, "c:\\x.xml");
}

TEST_F(FileDialog, KeepsItsFolderBetweenUses) {
  dialog.setUpForReading();
  show([&] {
    dialog.DirList.userOpen("c:\\home\\anna");
    dialog.ImageZamknij.userClick();
  });
  dialog.setUpForSaving("x.xml");
  show([&] { dialog.ImageZapisz.userClick(); });
  EXPECT_EQ(chosen, "c:\\home\\anna\\x.xml");
}

TEST_F(FileDialog, ACaptionThatIsNoModeOnlyHides) {
  dialog.setUpForReading();
  dialog.btnWczytaj.setCaption("&wczytaj");
  show([&] {
    dialog.FileList.userChoose(0);
    dialog.ImageWczytaj.userClick();
  });
  EXPECT_EQ(chosen, "");
}

TEST_F(FileDialog, AFolderThatCantBeListedIsShown) {
  dialog.setUpForReading();
  test.files.failReading("c:\\home", errors::permissionDenied());
  show([&] {
    dialog.DirList.userOpen("c:\\home");
    EXPECT_THAT(describe(test.face.takeBoxes()), ElementsAre("VIRD|critical|OK|Permission denied"));
    dialog.ImageZamknij.userClick();
  });
}

TEST_F(FileDialog, AFolderThatHasGoneIsShownAtTheNextShowing) {
  dialog.setUpForReading();
  dialog.DirList.setPath("c:\\home");
  test.files.failReading("c:\\home", errors::pathNotFound());
  show([&] {
    EXPECT_THAT(describe(test.face.takeBoxes()), ElementsAre("VIRD|critical|OK|Path not found"));
    dialog.ImageZamknij.userClick();
  });
}

// The folder of off-line work.

TEST_F(FileDialog, TheFolderOfOffLineWorkIsCreatedAndKept) {
  test.face.onModal([&] {
    dialog.DirList.userOpen("c:\\home\\anna");
    dialog.ImageWczytaj.userClick();
  });
  askOffLineFolder(dialog);
  EXPECT_TRUE(test.files.folderExists("c:\\home\\anna\\VIRD"));
  EXPECT_EQ(test.session.OffLinePathValue, "c:\\home\\anna\\VIRD");
  EXPECT_EQ(setting(), "c:\\home\\anna\\VIRD");
  EXPECT_EQ(chosen, "");
  EXPECT_THAT(test.face.boxes(), IsEmpty());
}

TEST_F(FileDialog, TheFolderOfOffLineWorkMayBeThereAlready) {
  test.files.put("c:\\home\\VIRD\\userinfo.xml", "u");
  test.face.onModal([&] {
    dialog.DirList.userOpen("c:\\home");
    dialog.ImageWczytaj.userClick();
  });
  askOffLineFolder(dialog);
  EXPECT_EQ(setting(), "c:\\home\\VIRD");
  EXPECT_EQ(test.files.bytes("c:\\home\\VIRD\\userinfo.xml"), "u");
  EXPECT_THAT(test.face.boxes(), IsEmpty());
}

TEST_F(FileDialog, TheFolderOfOffLineWorkMayBeTyped) {
  test.face.onModal([&] {
    dialog.lblOffLinePath.userType("/home/anna/VIRD");
    dialog.ImageWczytaj.userClick();
  });
  askOffLineFolder(dialog);
  EXPECT_TRUE(test.files.folderExists("c:\\home\\anna\\VIRD"));
  EXPECT_EQ(setting(), "/home/anna/VIRD");
}

TEST_F(FileDialog, ADoubleClickOnAFileAcceptsTheFolderOfOffLineWork) {
  test.face.onModal([&] {
    dialog.DirList.userOpen("c:\\home\\anna");
    dialog.FileList.userChoose(0);
    dialog.FileList.userDoubleClick();
    EXPECT_FALSE(dialog.shown());
  });
  askOffLineFolder(dialog);
  EXPECT_TRUE(test.files.folderExists("c:\\home\\anna\\VIRD"));
  EXPECT_EQ(test.session.OffLinePathValue, "c:\\home\\anna\\VIRD");
  EXPECT_EQ(setting(), "c:\\home\\anna\\VIRD");
  EXPECT_EQ(chosen, "");
}

TEST_F(FileDialog, AFolderThatCantBeCreatedIsShownAndTheDialogStays) {
  test.face.onModal([&] {
    dialog.lblOffLinePath.userType("c:\\nowhere\\VIRD");
    dialog.ImageWczytaj.userClick();
    EXPECT_THAT(describe(test.face.takeBoxes()), ElementsAre("VIRD|critical|OK|Path not found"));
    EXPECT_TRUE(dialog.shown());
    dialog.ImageZamknij.userClick();
  });
  askOffLineFolder(dialog);
  EXPECT_EQ(test.session.OffLinePathValue, "c:\\nowhere\\VIRD");
  EXPECT_EQ(setting(), "");
}

TEST_F(FileDialog, AnotherFolderThatIsThereIsRefusedAsTheListingDoesntNameIt) {
  test.face.onModal([&] {
    dialog.lblOffLinePath.userType("c:\\home\\anna");
    dialog.ImageWczytaj.userClick();
    EXPECT_THAT(describe(test.face.takeBoxes()),
                ElementsAre("VIRD|critical|OK|Path/File access error"));
    dialog.ImageZamknij.userClick();
  });
  askOffLineFolder(dialog);
  EXPECT_EQ(setting(), "");
}

TEST_F(FileDialog, ClosingKeepsTheFolderOfOffLineWork) {
  test.session.OffLinePathValue = "c:\\old\\VIRD";
  test.face.onModal([&] { dialog.ImageZamknij.userClick(); });
  askOffLineFolder(dialog);
  EXPECT_EQ(test.session.OffLinePathValue, "c:\\old\\VIRD");
  EXPECT_EQ(setting(), "");
  EXPECT_FALSE(test.files.folderExists("c:\\VIRD"));
}

}  // namespace
}  // namespace awizo::test
