#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <filesystem>
#include <sstream>
#include <thread>

#include "adapters/posix/descriptor.h"
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

TEST_F(RecordFolderTest, KnowsWhichRecordsWereTried) {
  folder.create();
  const std::string name = folder.create().name;
  folder.markTried(name);
  ASSERT_EQ(folder.records().size(), 2U);
  for (const FoundRecord& record : folder.records()) EXPECT_EQ(record.tried, record.name == name);
  folder.remove(name);
  EXPECT_FALSE(folder.records().at(0).tried);
  EXPECT_EQ(std::distance(fs::directory_iterator(path), fs::directory_iterator()), 1);
}

TEST_F(RecordFolderTest, LeavesOtherFilesAlone) {
  folder.create();
  test::writeFile(path / "notes.txt", "mine");
  fs::create_symlink(path / "notes.txt", path / "link.record");
  EXPECT_EQ(folder.records().size(), 1U);
  EXPECT_NE(errorNumberOf([&] { folder.read("../records/notes.txt"); }), 0);
  EXPECT_NE(errorNumberOf([&] { folder.read("link.record"); }), 0);
}

struct TextsBesideRecords : RecordFolderTest {
  fs::path pathOf(const NewRecord& record) const {
    return pathBeside((path / record.name).string(), name);
  }
  std::size_t entries() const {
    return static_cast<std::size_t>(std::distance(fs::directory_iterator(path), {}));
  }

  const std::string name = "0123-8";
  const std::string text = "the text";
};

TEST_F(TextsBesideRecords, AreTheirOwnersAlone) {
  const NewRecord record = folder.create();
  record.texts->keep(name, text);
  EXPECT_EQ(folder.readBeside(record.name, name), text);
  EXPECT_EQ(fs::status(pathOf(record)).permissions(),
            fs::perms::owner_read | fs::perms::owner_write);
  EXPECT_EQ(fs::status(pathOf(record).parent_path()).permissions(), fs::perms::owner_all);
  const auto found = folder.records();
  ASSERT_EQ(found.size(), 1U);
  EXPECT_EQ(found[0].size, 0U);
  ASSERT_EQ(found[0].texts.size(), 1U);
  EXPECT_EQ(found[0].texts[0].name, name);
  EXPECT_EQ(found[0].texts[0].size, text.size());
}

TEST_F(TextsBesideRecords, AreSharedAndGoWithTheLastRecord) {
  PosixRecordFolder others{path.string()};
  const NewRecord one = folder.create();
  const NewRecord two = others.create();
  one.texts->keep(name, text);
  two.texts->keep(name, text);
  two.texts->keep(name, text);
  EXPECT_EQ(fs::hard_link_count(pathOf(two)), 2U);
  folder.remove(one.name);
  EXPECT_EQ(others.readBeside(two.name, name), text);
  EXPECT_EQ(fs::hard_link_count(pathOf(two)), 1U);
  others.remove(two.name);
  EXPECT_EQ(entries(), 0U);
}

TEST_F(TextsBesideRecords, AreNotSharedWhereTheyAreDamaged) {
  const NewRecord one = folder.create();
  const NewRecord two = folder.create();
  one.texts->keep(name, text);
  test::writeFile(pathOf(one), "the test");
  two.texts->keep(name, text);
  EXPECT_EQ(folder.readBeside(two.name, name), text);
}

TEST_F(TextsBesideRecords, OfARecordThatWasHalfRemovedGoWithTheNext) {
  const NewRecord one = folder.create();
  one.texts->keep(name, text);
  fs::remove(path / one.name);
  folder.create();
  EXPECT_FALSE(fs::exists(pathOf(one).parent_path()));
  EXPECT_EQ(entries(), 1U);
}

TEST_F(TextsBesideRecords, AreNeverLookedForElsewhere) {
  const NewRecord record = folder.create();
  record.texts->keep(name, text);
  test::writeFile(path / "secret", "secret");
  EXPECT_NE(errorNumberOf([&] { folder.readBeside(record.name, "../secret"); }), 0);
  EXPECT_NE(errorNumberOf([&] { record.texts->keep("../secret", text); }), 0);
  fs::create_symlink(path / "secret", pathOf(record).parent_path() / "link");
  EXPECT_NE(errorNumberOf([&] { folder.readBeside(record.name, "link"); }), 0);
  EXPECT_EQ(test::readFile(path / "secret"), "secret");
}

TEST_F(TextsBesideRecords, WrittenByTwoProgramsAtOnceAreWholeForBoth) {
  const std::string longText(1'000'000, 'x');
  for (int round = 0; round < 20; ++round) {
    const auto work = [&] {
      NewRecord record = folder.create();
      record.texts->keep(name, longText);
      return folder.readBeside(record.name, name) == longText;
    };
    const pid_t child = fork();
    if (child == 0) _exit(work() ? 0 : 1);
    EXPECT_TRUE(work());
    int status = -1;
    waitpid(child, &status, 0);
    ASSERT_EQ(status, 0);
  }
}

/// Writes long texts and then their names, until it is killed.
[[noreturn]] void keepForEver(PosixRecordFolder& folder) {
  const NewRecord record = folder.create();
  for (int number = 1;; ++number) {
    const std::string name = std::to_string(number);
    record.texts->keep(name, std::string(500'000, static_cast<char>('a' + number % 20)));
    record.file->append(name + "\n");
  }
}

TEST_F(TextsBesideRecords, AreWholeWhereverTheProgramIsKilled) {
  int named = 0;
  for (int kill = 1; kill <= 20; ++kill) {
    const pid_t child = fork();
    if (child == 0) keepForEver(folder);
    std::this_thread::sleep_for(std::chrono::milliseconds(kill));
    ::kill(child, SIGKILL);
    waitpid(child, nullptr, 0);
    for (const FoundRecord& record : folder.records()) {
      std::istringstream names(folder.read(record.name));
      for (std::string kept; std::getline(names, kept); ++named) {
        const std::string bytes = folder.readBeside(record.name, kept);
        EXPECT_EQ(bytes, std::string(500'000, bytes.at(0)));
      }
      folder.remove(record.name);
    }
    folder.remove(folder.create().name);
    EXPECT_EQ(entries(), 0U);
  }
  EXPECT_GT(named, 0);
}

TEST_F(RecordFolderTest, ThatCantBeMadeIsAnError) {
  test::writeFile(home.path() / "data", "a file");
  EXPECT_NE(errorNumberOf([&] { folder.create(); }), 0);
}

/// Holds the file for a moment as soon as it is there.
void lookAt(const std::string& path) {
  int file = -1;
  while (file < 0) file = open(path.c_str(), O_RDONLY | O_CLOEXEC);
  flock(file, LOCK_SH | LOCK_NB);
  std::this_thread::sleep_for(std::chrono::milliseconds(2));
  close(file);
}

TEST(GrowingFile, IsInUseEvenIfSomebodyLooksJustWhenItComes) {
  const test::TemporaryFolder home;
  for (int round = 0; round < 50; ++round) {
    const std::string path = (home.path() / std::to_string(round)).string();
    std::thread looker(lookAt, path);
    const PosixGrowingFile file(path);
    looker.join();
    const posix::Descriptor other(path, O_RDONLY);
    ASSERT_NE(flock(other.number(), LOCK_SH | LOCK_NB), 0) << round;
  }
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
