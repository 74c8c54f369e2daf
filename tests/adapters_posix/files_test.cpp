#include <sys/resource.h>
#include <sys/stat.h>

#include <csignal>

#include "adapters/posix/posix_files.h"
#include "support/files/temporary_folder.h"
#include "tests/adapters_posix/ordinary_user.h"

namespace awizo {
namespace {

using test::errorNumberOf;
using test::expectErrorForOrdinaryUser;
using testing::ElementsAre;
using testing::IsEmpty;

class FilesTest : public testing::Test {
 protected:
  std::string classic(const std::string& name) const {
    std::string path = "c:" + (folder.path() / name).string();
    std::replace(path.begin(), path.end(), '/', '\\');
    return path;
  }
  std::string plain(const std::string& name) const { return folder.path() / name; }
  unsigned modeOf(const std::string& name) const {
    struct stat status {};
    EXPECT_EQ(stat(plain(name).c_str(), &status), 0);
    return status.st_mode & 07777U;
  }

  test::TemporaryFolder folder;
  PosixFiles files;
};

using Paths = FilesTest;

TEST_F(Paths, TheDriveCIsTheRoot) {
  folder.put("a.xml", "text");
  EXPECT_THAT(files.drives(), ElementsAre("c:"));
  EXPECT_EQ(files.readAll(classic("a.xml")), "text");
  EXPECT_TRUE(files.folderExists("c:\\"));
  EXPECT_TRUE(files.folderExists("c:"));
}

TEST_F(Paths, CaseOfTheDriveDoesNotMatter) {
  folder.put("a.xml", "text");
  std::string path = classic("a.xml");
  path[0] = 'C';
  EXPECT_EQ(files.readAll(path), "text");
}

TEST_F(Paths, WrittenWithSlashesTheyWorkToo) {
  folder.put("a.xml", "text");
  EXPECT_EQ(files.readAll(plain("a.xml")), "text");
  EXPECT_EQ(files.readAll("c:" + plain("a.xml")), "text");
  EXPECT_EQ(files.readAll(folder.path().string() + "\\a.xml"), "text");
}

TEST_F(Paths, TheyMayHoldRussianLetters) {
  files.replace(classic("Подтверждение_отгрузки_1.xml"), "text");
  EXPECT_EQ(folder.bytes("Подтверждение_отгрузки_1.xml"), "text");
}

TEST_F(Paths, AnotherDriveIsUnavailable) {
  EXPECT_EQ(errorNumberOf([&] { files.readAll("d:\\a.xml"); }), 68);
  EXPECT_EQ(errorNumberOf([&] { files.replace("A:\\a.xml", ""); }), 68);
  EXPECT_EQ(errorNumberOf([&] { files.createText("d:\\a.log"); }), 68);
  EXPECT_EQ(errorNumberOf([&] { files.makeFolder("d:\\a"); }), 68);
  EXPECT_EQ(errorNumberOf([&] { files.folders("d:\\"); }), 68);
  EXPECT_FALSE(files.folderExists("d:\\"));
}

TEST_F(Paths, WhatCanBeNoNameIsABadName) {
  EXPECT_EQ(errorNumberOf([&] { files.readAll(""); }), 52);
  EXPECT_EQ(errorNumberOf([&] { files.replace(std::string_view("a\0b", 3), ""); }), 52);
  EXPECT_EQ(errorNumberOf([&] { files.replace(classic(std::string(300, 'a')), ""); }), 52);
  EXPECT_FALSE(files.folderExists(""));
}

using Reading = FilesTest;

TEST_F(Reading, GivesAllBytes) {
  const std::string bytes("\0\r\n\xFF text", 9);
  folder.put("a", bytes);
  EXPECT_EQ(files.readAll(classic("a")), bytes);
  folder.put("empty", "");
  EXPECT_EQ(files.readAll(classic("empty")), "");
}

TEST_F(Reading, AMissingFileIsNotFound) {
  EXPECT_EQ(errorNumberOf([&] { files.readAll(classic("a.xml")); }), 53);
}

TEST_F(Reading, AMissingFolderIsAPathNotFound) {
  EXPECT_EQ(errorNumberOf([&] { files.readAll(classic("none\\a.xml")); }), 76);
  folder.put("file", "");
  EXPECT_EQ(errorNumberOf([&] { files.readAll(classic("file\\a.xml")); }), 76);
}

TEST_F(Reading, AFolderOrADeviceIsNoFile) {
  EXPECT_EQ(errorNumberOf([&] { files.readAll(classic("")); }), 75);
  EXPECT_EQ(errorNumberOf([&] { files.readAll("/dev/zero"); }), 75);
  ASSERT_EQ(mkfifo(plain("pipe").c_str(), 0600), 0);
  EXPECT_EQ(errorNumberOf([&] { files.readAll(classic("pipe")); }), 75);
}

TEST_F(Reading, AFileOfSomebodyElseIsDenied) {
  folder.put("a.xml", "text");
  chmod(plain("a.xml").c_str(), 0);
  expectErrorForOrdinaryUser(70, [&] { files.readAll(classic("a.xml")); });
}

using Replacing = FilesTest;

TEST_F(Replacing, MakesANewFileOrANewContent) {
  files.replace(classic("a.xml"), "first");
  EXPECT_EQ(folder.bytes("a.xml"), "first");
  files.replace(classic("a.xml"), "2");
  EXPECT_EQ(folder.bytes("a.xml"), "2");
  EXPECT_THAT(folder.names(), ElementsAre("a.xml"));
}

TEST_F(Replacing, ANewFileHasTheUsualPermissions) {
  const mode_t before = umask(027);
  files.replace(classic("a.xml"), "text");
  umask(before);
  EXPECT_EQ(modeOf("a.xml"), 0640U);
}

TEST_F(Replacing, AnOldFileKeepsItsPermissions) {
  folder.put("a.xml", "old");
  chmod(plain("a.xml").c_str(), 0604);
  files.replace(classic("a.xml"), "new");
  EXPECT_EQ(folder.bytes("a.xml"), "new");
  EXPECT_EQ(modeOf("a.xml"), 0604U);
}

TEST_F(Replacing, ALinkStaysALink) {
  folder.put("a.xml", "old");
  std::filesystem::create_symlink("a.xml", folder.path() / "link.xml");
  files.replace(classic("link.xml"), "new");
  EXPECT_EQ(folder.bytes("a.xml"), "new");
  EXPECT_TRUE(std::filesystem::is_symlink(folder.path() / "link.xml"));
}

TEST_F(Replacing, AMissingFolderIsAPathNotFound) {
  EXPECT_EQ(errorNumberOf([&] { files.replace(classic("none\\a.xml"), ""); }), 76);
  EXPECT_THAT(folder.names(), IsEmpty());
}

TEST_F(Replacing, AFolderIsNotReplaced) {
  files.makeFolder(classic("a.xml"));
  EXPECT_EQ(errorNumberOf([&] { files.replace(classic("a.xml"), ""); }), 75);
  EXPECT_TRUE(files.folderExists(classic("a.xml")));
}

TEST_F(Replacing, AReadOnlyFolderIsDeniedAndTheOldFileStays) {
  folder.put("a.xml", "old");
  chmod(folder.path().c_str(), 0555);
  expectErrorForOrdinaryUser(70, [&] { files.replace(classic("a.xml"), "new"); });
  expectErrorForOrdinaryUser(70, [&] { files.replace(classic("b.xml"), "new"); });
  EXPECT_EQ(folder.bytes("a.xml"), "old");
  EXPECT_THAT(folder.names(), ElementsAre("a.xml"));
}

TEST_F(Replacing, AReadOnlyFileIsDeniedAndStays) {
  folder.put("a.xml", "old");
  chmod(plain("a.xml").c_str(), 0444);
  expectErrorForOrdinaryUser(70, [&] { files.replace(classic("a.xml"), "new"); });
  EXPECT_EQ(folder.bytes("a.xml"), "old");
}

/// A limit on the size of files stops the writing in the middle, as a disk that fills up does.
TEST_F(Replacing, ADiskThatFillsUpLeavesTheOldFileAndNothingElse) {
  folder.put("a.xml", "old");
  const auto fillUp = [&] {
    std::signal(SIGXFSZ, SIG_IGN);
    const rlimit limit{100'000, 100'000};
    setrlimit(RLIMIT_FSIZE, &limit);
    files.replace(classic("a.xml"), std::string(1'000'000, 'x'));
  };
  EXPECT_EXIT(_exit(errorNumberOf(fillUp)), testing::ExitedWithCode(61), "");
  EXPECT_EQ(folder.bytes("a.xml"), "old");
  EXPECT_THAT(folder.names(), ElementsAre("a.xml"));
}

TEST_F(Replacing, AFullDeviceIsADiskFullAndStaysADevice) {
  EXPECT_EQ(errorNumberOf([&] { files.replace("c:\\dev\\full", "text"); }), 61);
  EXPECT_TRUE(std::filesystem::is_character_file("/dev/full"));
}

TEST_F(Replacing, WhatACrashLeftBehindIsNoObstacle) {
  folder.put(".awizo-" + std::to_string(getpid()) + "-0", "half");
  files.replace(classic("a.xml"), "text");
  EXPECT_EQ(folder.bytes("a.xml"), "text");
}

using TextFiles = FilesTest;

TEST_F(TextFiles, EachLineIsInTheFileBeforeTheNext) {
  const auto log = files.createText(classic("Awizo.log"));
  EXPECT_EQ(folder.bytes("Awizo.log"), "");
  log->writeLine("one");
  EXPECT_EQ(folder.bytes("Awizo.log"), "one\r\n");
  log->writeLine("");
  log->writeLine("\xE4\xE2\xE0");
  EXPECT_EQ(folder.bytes("Awizo.log"), "one\r\n\r\n\xE4\xE2\xE0\r\n");
}

TEST_F(TextFiles, OnlyTheOwnerCanReadThem) {
  const mode_t before = umask(0);
  files.createText(classic("Awizo.log"));
  umask(before);
  EXPECT_EQ(modeOf("Awizo.log"), 0600U);
}

TEST_F(TextFiles, AnOldFileIsEmptiedAndClosedToOthers) {
  folder.put("Awizo.log", "the run before");
  chmod(plain("Awizo.log").c_str(), 0644);
  files.createText(classic("Awizo.log"));
  EXPECT_EQ(folder.bytes("Awizo.log"), "");
  EXPECT_EQ(modeOf("Awizo.log"), 0600U);
}

TEST_F(TextFiles, ALinkIsNotFollowedToAFileElsewhere) {
  folder.put("precious", "text");
  std::filesystem::create_symlink("precious", folder.path() / "Awizo.log");
  EXPECT_EQ(errorNumberOf([&] { files.createText(classic("Awizo.log")); }), 75);
  EXPECT_EQ(folder.bytes("precious"), "text");
}

TEST_F(TextFiles, FailuresByTheirCause) {
  EXPECT_EQ(errorNumberOf([&] { files.createText(classic("none\\Awizo.log")); }), 76);
  EXPECT_EQ(errorNumberOf([&] { files.createText(classic("")); }), 75);
  chmod(folder.path().c_str(), 0555);
  expectErrorForOrdinaryUser(70, [&] { files.createText(classic("Awizo.log")); });
}

TEST_F(TextFiles, ALineThatFindsTheDiskFullIsADiskFull) {
  const auto log = files.createText("c:\\dev\\full");
  EXPECT_EQ(errorNumberOf([&] { log->writeLine("text"); }), 61);
}

using Folders = FilesTest;

TEST_F(Folders, AreMade) {
  EXPECT_FALSE(files.folderExists(classic("VIRD")));
  files.makeFolder(classic("VIRD"));
  EXPECT_TRUE(files.folderExists(classic("VIRD")));
  EXPECT_TRUE(files.folderExists(classic("VIRD\\")));
}

TEST_F(Folders, AFileIsNoFolder) {
  folder.put("a", "");
  EXPECT_FALSE(files.folderExists(classic("a")));
}

TEST_F(Folders, FailuresOfMakingByTheirCause) {
  files.makeFolder(classic("VIRD"));
  EXPECT_EQ(errorNumberOf([&] { files.makeFolder(classic("VIRD")); }), 75);
  EXPECT_EQ(errorNumberOf([&] { files.makeFolder(classic("none\\VIRD")); }), 76);
  chmod(folder.path().c_str(), 0555);
  expectErrorForOrdinaryUser(70, [&] { files.makeFolder(classic("new")); });
}

TEST_F(Folders, ListTheirFoldersInOrder) {
  for (const char* name : {"b", "A", "c", ".hidden", "я", "Б"}) {
    files.makeFolder(classic(name));
  }
  folder.put("file", "");
  EXPECT_THAT(files.folders(classic("")), ElementsAre("A", "b", "c", "Б", "я"));
}

TEST_F(Folders, ListTheirFilesOfAnEndingInOrder) {
  for (const char* name : {"b.xml", "A.XML", "c.xml.bak", "xml", ".hidden.xml", "ю.Xml", "B.xml"}) {
    folder.put(name, "");
  }
  files.makeFolder(classic("folder.xml"));
  EXPECT_THAT(files.files(classic(""), ".xml"), ElementsAre("A.XML", "B.xml", "b.xml", "ю.Xml"));
}

TEST_F(Folders, NamesThatNoClassicPathCanSayAreNotListed) {
  folder.put("a\\b.xml", "");
  folder.put("a\xFF.xml", "");
  EXPECT_THAT(files.files(classic(""), ".xml"), IsEmpty());
}

TEST_F(Folders, AMissingOneIsAPathNotFound) {
  EXPECT_EQ(errorNumberOf([&] { files.folders(classic("none")); }), 76);
  EXPECT_EQ(errorNumberOf([&] { files.files(classic("none"), ".xml"); }), 76);
  folder.put("file", "");
  EXPECT_EQ(errorNumberOf([&] { files.files(classic("file"), ".xml"); }), 76);
}

TEST_F(Folders, OneOfSomebodyElseIsDenied) {
  chmod(folder.path().c_str(), 0);
  expectErrorForOrdinaryUser(70, [&] { files.folders(classic("")); });
}

}  // namespace
}  // namespace awizo
