#include "desk/file_places.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/test_editor.h"

namespace awizo::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

struct FilePlaces : ::testing::Test, TestSurroundings {
  FilePlaces() {
    files.putFolder("c:\\home\\anna\\Документы");
    files.put("c:\\drafts\\a.xml", "<a/>");
    files.put("c:\\drafts\\b.xml", "<b/>");
  }
  std::vector<std::string> offered() {
    std::vector<std::string> texts;
    for (const FilePlace& place : filePlaces(files, settings, user)) {
      texts.push_back(place.words + " in " + place.folder);
    }
    return texts;
  }
  UserFolders user{"c:\\home\\anna", "c:\\home\\anna\\Документы"};
};

TEST_F(FilePlaces, BeginInTheDocumentsAndThenWhereTheUserWasLast) {
  EXPECT_EQ(firstFileFolder(files, settings, user), "c:\\home\\anna\\Документы");
  keepUsedFile(settings, "c:\\drafts\\a.xml");
  EXPECT_EQ(firstFileFolder(files, settings, user), "c:\\drafts");
  keepUsedFile(settings, "c:\\gone\\a.xml");
  EXPECT_EQ(firstFileFolder(files, settings, user), "c:\\home\\anna\\Документы");
}

TEST_F(FilePlaces, BeginAtHomeWithoutDocumentsAndNowhereWithoutAHome) {
  user.documents = "c:\\home\\anna\\Documents";
  EXPECT_EQ(firstFileFolder(files, settings, user), "c:\\home\\anna");
  user.home = "";
  EXPECT_EQ(firstFileFolder(files, settings, user), "");
}

TEST_F(FilePlaces, ProposeTheFolderOfOffLineWorkAtHome) {
  EXPECT_EQ(firstOffLineParent(files, user), "c:\\home\\anna");
  user.home = "c:\\nonexistent";
  EXPECT_EQ(firstOffLineParent(files, user), "");
}

TEST_F(FilePlaces, OfferTheUsersFoldersAndTheFilesUsedLast) {
  keepUsedFile(settings, "c:\\drafts\\a.xml");
  keepUsedFile(settings, "/drafts/b.xml");
  keepUsedFile(settings, "c:\\drafts\\gone.xml");
  EXPECT_THAT(offered(), ElementsAre("Документы in c:\\home\\anna\\Документы",
                                     "Домашняя папка in c:\\home\\anna", "b.xml in c:\\drafts",
                                     "a.xml in c:\\drafts"));
  keepUsedFile(settings, "c:\\drafts\\a.xml");
  EXPECT_EQ(offered()[2], "a.xml in c:\\drafts") << "a file stands there once, the newest first";
}

TEST_F(FilePlaces, RememberSixFiles) {
  for (int i = 0; i < 8; ++i) {
    const std::string path = "c:\\drafts\\f" + std::to_string(i) + ".xml";
    files.put(path, "<a/>");
    keepUsedFile(settings, path);
  }
  user = {};
  EXPECT_EQ(offered().size(), 6U);
  EXPECT_EQ(offered().back(), "f2.xml in c:\\drafts");
}

TEST_F(FilePlaces, OfferNothingWhereNothingIsThere) {
  user = {};
  keepUsedFile(settings, "c:\\");
  EXPECT_THAT(offered(), IsEmpty());
}

struct FileDialogPlaces : FilePlaces {
  FileDialogPlaces() { keepUsedFile(settings, "c:\\drafts\\a.xml"); }
  std::string proposed() { return proposedFolder(dialog, files, settings, user); }

  Screen screen{face};
  SessionState session{platform};
  DlgWczytajZapisz dialog{screen, files, settings, session};
};

TEST_F(FileDialogPlaces, AreProposedWhereTheDialogKeepsNoFolderYet) {
  dialog.setUpForReading();
  EXPECT_EQ(proposed(), "c:\\drafts");
  dialog.setUpForOffLineFolder();
  EXPECT_EQ(proposed(), "c:\\home\\anna");
  dialog.DirList.setPath("c:\\home");
  EXPECT_EQ(proposed(), "");
}

TEST_F(FileDialogPlaces, AreThoseWhereTheUserMayWriteWhenHeSaves) {
  user.mayWrite = [](const std::string& folder) { return folder == "c:\\home\\anna"; };
  dialog.setUpForReading();
  EXPECT_EQ(proposed(), "c:\\drafts");
  dialog.setUpForSaving("b.xml");
  EXPECT_EQ(proposed(), "c:\\home\\anna");
  dialog.DirList.setPath("c:\\drafts");
  EXPECT_EQ(proposed(), "c:\\home\\anna") << "where a file was read from";
  dialog.setUpForReading();
  EXPECT_EQ(proposed(), "");
  user.mayWrite = [](const std::string&) { return false; };
  dialog.setUpForSaving("b.xml");
  EXPECT_EQ(proposed(), "");
  EXPECT_EQ(firstOffLineParent(files, user), "");
}

TEST_F(FileDialogPlaces, AreFilesOnlyWhereAFileIsRead) {
  dialog.setUpForReading();
  EXPECT_TRUE(offersFiles(dialog));
  dialog.setUpForSaving("b.xml");
  EXPECT_FALSE(offersFiles(dialog));
  dialog.setUpForOffLineFolder();
  EXPECT_FALSE(offersFiles(dialog));
}

TEST_F(FileDialogPlaces, AreGoneToAsAUserGoes) {
  dialog.setUpForReading();
  face.onModal([&] {
    userGoTo(dialog, {"", "c:\\drafts", "b.xml"});
    EXPECT_EQ(dialog.DirList.path(), "c:\\drafts");
    EXPECT_EQ(dialog.FileList.fileName(), "b.xml");
    userGoTo(dialog, {"", "c:\\home\\anna", ""});
    EXPECT_EQ(dialog.DirList.path(), "c:\\home\\anna");
    userGoTo(dialog, {"", "c:\\drafts", "gone.xml"});
    EXPECT_EQ(dialog.FileList.fileName(), "");
    dialog.ImageZamknij.userClick();
  });
  dialog.showModal();
}

}  // namespace
}  // namespace awizo::test
