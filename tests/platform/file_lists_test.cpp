#include "platform/forms/file_lists.h"

#include "form_fixture.h"
#include "platform/forms/text_field.h"
#include "support/memory_files.h"

namespace awizo::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// Files with a second drive, which holds nothing but its root.
class TwoDrives : public MemoryFiles {
 public:
  std::vector<std::string> drives() override { return {"c:", "d:"}; }
};

class FileLists : public FormTest {
 protected:
  TwoDrives files;
  TextField other{form, "other"};
  DriveList drive{form, "Drive", files};
  FolderList folders{form, "DirList", files};
  FileList list{form, "FileList", files, ".xml"};

  FileLists() {
    files.put("c:\\home\\anna\\a.xml", "<a/>");
    files.put("c:\\home\\anna\\b.XML", "<b/>");
    files.put("c:\\home\\anna\\c.txt", "c");
    files.putFolder("c:\\home\\anna\\VIRD");
    files.putFolder("d:");
    form.showMain();
    noteFocus(other);
    drive.onChange = note("Drive.Change");
    folders.onChange = note("DirList.Change");
    list.onClick = note("FileList.Click");
    list.onDoubleClick = note("FileList.DoubleClick");
  }
};

TEST_F(FileLists, DriveIsSetByWhateverStandsBehindItsColon) {
  EXPECT_EQ(drive.drive(), "");
  drive.setDrive("c:\\");
  EXPECT_EQ(drive.drive(), "c:");
  drive.setDrive("C:");
  EXPECT_EQ(drive.drive(), "c:");
  EXPECT_THAT(events, ElementsAre("Drive.Change"));
  EXPECT_THAT(drive.rows(), ElementsAre("c:", "d:"));
}

TEST_F(FileLists, DriveThatIsNotReadyIsAnError) {
  EXPECT_EQ(errorOf([&] { drive.setDrive("e:"); }), "68 Device unavailable");
  EXPECT_EQ(errorOf([&] { drive.setDrive(""); }), "68 Device unavailable");
  EXPECT_EQ(errorOf([&] { folders.setPath("e:\\"); }), "68 Device unavailable");
  EXPECT_EQ(refusal([&] { drive.userChoose("e:"); }), "Drive has no such drive");
}

TEST_F(FileLists, UserChoosesADrive) {
  drive.userChoose("d:");
  EXPECT_EQ(drive.drive(), "d:");
  drive.userChoose("d:");
  EXPECT_THAT(events, ElementsAre("other.Validate", "other.LostFocus", "Drive.Change"));
}

TEST_F(FileLists, FolderPathEndsInABackslashOnlyAtARoot) {
  folders.setPath("c:\\home\\anna\\");
  EXPECT_EQ(folders.path(), "c:\\home\\anna");
  folders.setPath("c:\\");
  EXPECT_EQ(folders.path(), "c:\\");
  folders.setPath("d:");
  EXPECT_EQ(folders.path(), "d:\\");
  EXPECT_THAT(events, ElementsAre("DirList.Change", "DirList.Change", "DirList.Change"));
}

TEST_F(FileLists, FolderPathWithSlashesIsOnThePresentDrive) {
  folders.setPath("/home/anna");
  EXPECT_EQ(folders.path(), "c:\\home\\anna");
  folders.setPath("c:\\home\\anna");
  EXPECT_THAT(events, ElementsAre("DirList.Change"));
  folders.setPath("d:\\");
  EXPECT_EQ(errorOf([&] { folders.setPath("/home"); }), "76 Path not found");
}

TEST_F(FileLists, FolderNameAloneLiesInThePresentFolder) {
  folders.setPath("c:\\");
  folders.userOpen("home");
  EXPECT_EQ(folders.path(), "c:\\home");
  folders.userOpen("anna");
  EXPECT_EQ(folders.path(), "c:\\home\\anna");
}

TEST_F(FileLists, FolderThatIsNotThereIsAnError) {
  folders.setPath("c:\\home");
  takeEvents();
  EXPECT_EQ(errorOf([&] { folders.setPath("c:\\nowhere"); }), "76 Path not found");
  EXPECT_EQ(errorOf([&] { folders.setPath(""); }), "76 Path not found");
  EXPECT_EQ(errorOf([&] { list.setPath("c:\\nowhere"); }), "76 Path not found");
  EXPECT_EQ(refusal([&] { folders.userOpen("c:\\nowhere"); }), "DirList: Path not found");
  EXPECT_EQ(folders.path(), "c:\\home");
  EXPECT_THAT(events, IsEmpty());
}

TEST_F(FileLists, FolderListNamesTheSubfolders) {
  EXPECT_THAT(folders.rows(), IsEmpty());
  folders.userOpen("c:\\home\\anna");
  EXPECT_THAT(folders.rows(), ElementsAre("VIRD"));
  files.putFolder("c:\\home\\anna\\Новая");
  EXPECT_THAT(folders.rows(), ElementsAre("VIRD", "Новая"));
  EXPECT_THAT(events, ElementsAre("other.Validate", "other.LostFocus", "DirList.Change"));
}

TEST_F(FileLists, FileListHoldsTheNamesOfItsPatternAndSelectsNothing) {
  list.setPath("c:\\home\\anna");
  EXPECT_THAT(list.rows(), ElementsAre("a.xml", "b.XML"));
  EXPECT_EQ(list.index(), -1);
  EXPECT_EQ(list.fileName(), "");
}

TEST_F(FileLists, UserSelectsAFileByAClick) {
  list.setPath("c:\\home\\anna");
  list.userChoose(1);
  EXPECT_EQ(list.fileName(), "b.XML");
  EXPECT_THAT(events, ElementsAre("other.Validate", "other.LostFocus", "FileList.Click"));
  EXPECT_EQ(refusal([&] { list.userChoose(2); }), "FileList has no such row");
  EXPECT_EQ(refusal([&] { list.userChoose(-1); }), "FileList has no such row");
}

TEST_F(FileLists, DoubleClickRaisesTheClickFirstAndNeedsASelectedFile) {
  list.setPath("c:\\home\\anna");
  EXPECT_EQ(refusal([&] { list.userDoubleClick(); }), "FileList has no row selected");
  list.userChoose(0);
  takeEvents();
  list.userDoubleClick();
  EXPECT_THAT(events, ElementsAre("FileList.Click", "FileList.DoubleClick"));
}

TEST_F(FileLists, AnotherFolderSelectsNothing) {
  list.setPath("c:\\home\\anna");
  list.userChoose(0);
  list.setPath("c:\\home");
  EXPECT_EQ(list.fileName(), "");
  EXPECT_THAT(list.rows(), IsEmpty());
}

TEST_F(FileLists, RefreshKeepsTheSelectedNameAsLongAsItIsThere) {
  list.setPath("c:\\home\\anna");
  list.userChoose(1);
  files.put("c:\\home\\anna\\aa.xml", "");
  list.refresh();
  EXPECT_THAT(list.rows(), ElementsAre("a.xml", "aa.xml", "b.XML"));
  EXPECT_EQ(list.fileName(), "b.XML");
  EXPECT_EQ(list.index(), 2);
}

TEST_F(FileLists, FolderThatCanNotBeReadLeavesTheListAsItWas) {
  list.setPath("c:\\home\\anna");
  files.putFolder("c:\\closed");
  files.failReading("c:\\closed", errors::permissionDenied());
  EXPECT_EQ(errorOf([&] { list.setPath("c:\\closed"); }), "70 Permission denied");
  EXPECT_EQ(list.path(), "c:\\home\\anna");
  EXPECT_THAT(list.rows(), ElementsAre("a.xml", "b.XML"));
}

}  // namespace
}  // namespace awizo::test
