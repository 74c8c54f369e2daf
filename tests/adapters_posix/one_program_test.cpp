#include <gtest/gtest.h>
#include <poll.h>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include <atomic>
#include <chrono>
#include <filesystem>
#include <optional>
#include <thread>
#include <vector>

#include "adapters/posix/posix_one_program.h"
#include "support/files/files.h"
#include "support/files/temporary_folder.h"

namespace awizo {
namespace {

namespace fs = std::filesystem;

bool isCalled(const PosixOneProgram& program) {
  pollfd waiting{program.calls(), POLLIN, 0};
  return poll(&waiting, 1, 0) == 1;
}

struct OneProgramTest : testing::Test {
  test::TemporaryFolder home;
  const std::string folder = (home.path() / "programs").string();
};

TEST_F(OneProgramTest, TheSecondCallsTheFirst) {
  const PosixOneProgram first(folder, "a");
  const PosixOneProgram second(folder, "a");
  EXPECT_TRUE(first.isFirst());
  EXPECT_FALSE(second.isFirst());
  EXPECT_EQ(second.calls(), -1);
  EXPECT_FALSE(isCalled(first));
  for (int call = 0; call < 1000; ++call) ASSERT_TRUE(second.callFirst());
  EXPECT_TRUE(isCalled(first));
  first.takeCalls();
  EXPECT_FALSE(isCalled(first));
}

TEST_F(OneProgramTest, OfAnotherNameIsTheFirstOfItsOwn) {
  const PosixOneProgram one(folder, "a");
  const PosixOneProgram other(folder, "b");
  EXPECT_TRUE(other.isFirst());
  EXPECT_TRUE(other.callFirst());
  EXPECT_FALSE(isCalled(one));
}

TEST_F(OneProgramTest, FreesItsNameWithItsEnd) {
  std::optional<PosixOneProgram> first(std::in_place, folder, "a");
  first.reset();
  const PosixOneProgram next(folder, "a");
  EXPECT_TRUE(next.isFirst());
  EXPECT_NE(next.calls(), -1);
}

TEST_F(OneProgramTest, LeavesNothingBehind) {
  {
    const PosixOneProgram first(folder, "a");
    const PosixOneProgram second(folder, "a");
    EXPECT_FALSE(fs::is_empty(folder));
  }
  EXPECT_TRUE(fs::is_empty(folder));
}

/// Begins and ends programs of one name; answers whether it ever had the name beside another.
bool sharesTheName(const std::string& folder, std::atomic<int>& holders) {
  bool shared = false;
  for (int round = 0; round < 2000; ++round) {
    const PosixOneProgram program(folder, "a");
    if (!program.isFirst()) continue;
    const bool isAlone = holders.fetch_add(1) == 0;
    std::this_thread::sleep_for(std::chrono::microseconds(20));
    shared = shared || !isAlone;
    holders.fetch_sub(1);
  }
  return shared;
}

TEST_F(OneProgramTest, IsTheOnlyOneHoweverManyComeAndGo) {
  void* memory = mmap(nullptr, sizeof(std::atomic<int>), PROT_READ | PROT_WRITE,
                      MAP_SHARED | MAP_ANONYMOUS, -1, 0);
  ASSERT_NE(memory, MAP_FAILED);
  auto& holders = *new (memory) std::atomic<int>(0);
  std::vector<pid_t> children;
  for (int child = 0; child < 8; ++child) {
    children.push_back(fork());
    if (children.back() == 0) _exit(sharesTheName(folder, holders) ? 1 : 0);
  }
  for (const pid_t child : children) {
    int status = -1;
    waitpid(child, &status, 0);
    EXPECT_EQ(status, 0);
  }
  munmap(memory, sizeof(std::atomic<int>));
}

TEST_F(OneProgramTest, ThatHasDiedStopsNobody) {
  const pid_t child = fork();
  if (child == 0) {
    const PosixOneProgram first(folder, "a");
    _exit(first.isFirst() ? 0 : 1);
  }
  int status = -1;
  waitpid(child, &status, 0);
  ASSERT_EQ(status, 0);
  ASSERT_TRUE(fs::exists(folder + "/a"));
  const PosixOneProgram next(folder, "a");
  EXPECT_TRUE(next.isFirst());
  EXPECT_TRUE(PosixOneProgram(folder, "a").callFirst());
  EXPECT_TRUE(isCalled(next));
}

TEST_F(OneProgramTest, IsItsOwnersAlone) {
  const PosixOneProgram first(folder, "a");
  EXPECT_EQ(fs::status(folder).permissions(), fs::perms::owner_all);
}

TEST_F(OneProgramTest, InAFolderThatNobodyCanUseIsAlwaysTheFirst) {
  test::writeFile(folder, "a file");
  const PosixOneProgram one(folder, "a");
  const PosixOneProgram two(folder, "a");
  EXPECT_TRUE(one.isFirst());
  EXPECT_TRUE(two.isFirst());
  EXPECT_FALSE(two.callFirst());
}

TEST_F(OneProgramTest, UnderAPathTooLongToCallIsStillTheOnlyOne) {
  const std::string deep = folder + "/" + std::string(120, 'x');
  const PosixOneProgram one(deep, "a");
  const PosixOneProgram two(deep, "a");
  EXPECT_TRUE(one.isFirst());
  EXPECT_FALSE(two.isFirst());
  EXPECT_FALSE(two.callFirst());
}

}  // namespace
}  // namespace awizo
