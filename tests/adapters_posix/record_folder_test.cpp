#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>

#include "adapters/posix/posix_growing_file.h"
#include "adapters/posix/posix_record_folder.h"
#include "support/error_of.h"
#include "support/files/files.h"
#include "support/files/temporary_folder.h"

namespace awizo {
namespace {

namespace fs = std::filesystem;
using test::errorNumberOf;

struct RecordFolderTest : testing::Test {
  test::TemporaryFolder home;
  const fs::path path = home.path() / "data" / "records";
  PosixRecordFolder folder{path.string()};
};

TEST_F(RecordFolderTest, ThatIsNotThereYetHasNoRecords) {
  EXPECT_TRUE(folder.records().empty());
  EXPECT_FALSE(fs::exists(path));
}

TEST_F(RecordFolderTest, HoldsWhatWasWrittenForItsOwnerAlone) {
  const auto file = folder.create().file;
  file->append("one ");
  file->append("two");
  file->flush();
  const auto found = folder.records();
  ASSERT_EQ(found.size(), 1U);
  EXPECT_EQ(found[0].size, 7U);
  EXPECT_EQ(folder.read(found[0].name), "one two");
  EXPECT_EQ(fs::status(path).permissions(), fs::perms::owner_all);
  EXPECT_EQ(fs::status(path / found[0].name).permissions(),
            fs::perms::owner_read | fs::perms::owner_write);
}

TEST_F(RecordFolderTest, SaysWhichRecordsAreInUse) {
  auto open = folder.create().file;
  folder.create().file->append("closed");
  int inUse = 0;
  for (const FoundRecord& record : folder.records()) inUse += record.inUse ? 1 : 0;
  EXPECT_EQ(inUse, 1);
  open.reset();
  for (const FoundRecord& record : folder.records()) EXPECT_FALSE(record.inUse);
}

TEST_F(RecordFolderTest, FreesARecordWhoseProgramHasDied) {
  const pid_t child = fork();
  if (child == 0) {
    const auto file = folder.create().file;
    file->append("last words");
    _exit(0);
  }
  waitpid(child, nullptr, 0);
  const auto found = folder.records();
  ASSERT_EQ(found.size(), 1U);
  EXPECT_FALSE(found[0].inUse);
  EXPECT_EQ(folder.read(found[0].name), "last words");
}

TEST_F(RecordFolderTest, RemovesWhatIsThere) {
  folder.create();
  folder.remove(folder.records()[0].name);
  EXPECT_TRUE(folder.records().empty());
  folder.remove("none.record");
}

TEST_F(RecordFolderTest, LeavesOtherFilesAlone) {
  folder.create();
  test::writeFile(path / "notes.txt", "mine");
  fs::create_symlink(path / "notes.txt", path / "link.record");
  EXPECT_EQ(folder.records().size(), 1U);
  EXPECT_NE(errorNumberOf([&] { folder.read("../records/notes.txt"); }), 0);
  EXPECT_NE(errorNumberOf([&] { folder.read("link.record"); }), 0);
}

TEST_F(RecordFolderTest, ThatCantBeMadeIsAnError) {
  test::writeFile(home.path() / "data", "a file");
  EXPECT_NE(errorNumberOf([&] { folder.create(); }), 0);
}

TEST(GrowingFile, ThatIsThereAlreadyIsAnError) {
  const test::TemporaryFolder home;
  const std::string path = (home.path() / "a").string();
  test::writeFile(path, "before");
  EXPECT_NE(errorNumberOf([&] { PosixGrowingFile{path}; }), 0);
  EXPECT_EQ(test::readFile(path), "before");
}

}  // namespace
}  // namespace awizo
