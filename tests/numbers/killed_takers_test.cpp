// Processes that take numbers from one range are killed at random moments. No number may come out
// twice.

#include <gmock/gmock.h>
#include <signal.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdlib>
#include <fstream>
#include <map>
#include <random>
#include <thread>

#include "adapters/memory/fixed_clock.h"
#include "adapters/posix/posix_shared_store.h"
#include "numbers/given_numbers.h"
#include "support/files/temporary_folder.h"

namespace awizo {
namespace {

using SteadyClock = std::chrono::steady_clock;

constexpr int takers = 8;

int secondsToRun() {
  const char* given = std::getenv("AWIZO_NUMBER_SECONDS");
  return given == nullptr ? 2 : std::atoi(given);
}

class KilledTakers : public ::testing::Test {
 protected:
  std::string beginning() const { return (folder.path() / "numbers-").string(); }
  std::string seenFile(int taker) const {
    return (folder.path() / ("seen-" + std::to_string(taker))).string();
  }

  /// A process that shows every number that it gets.
  pid_t start(int taker) const {
    const pid_t process = fork();
    if (process != 0) return process;
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    PosixSharedStore store(beginning());
    const FixedClock clock({makeDate(2026, 11, 22), {10, 0, 0}});
    GivenNumbers numbers(store, clock);
    std::ofstream seen(seenFile(taker), std::ios::app);
    for (std::size_t i = 0;; ++i) {
      for (const std::string& number : numbers.take(i % 10 == 9 ? 500 : 1, "А"))
        seen << number << '\n';
      seen.flush();
    }
  }

  test::TemporaryFolder folder;
};

TEST_F(KilledTakers, NeverGetANumberTwice) {
  PosixSharedStore store(beginning());
  const FixedClock clock({makeDate(2026, 11, 22), {10, 0, 0}});
  GivenNumbers numbers(store, clock);
  numbers.setRange({"3", "9520001", 1, 999'999'999, 1});
  std::vector<pid_t> running;
  for (int taker = 0; taker < takers; ++taker) running.push_back(start(taker));
  std::mt19937 random(std::random_device{}());
  const auto end = SteadyClock::now() + std::chrono::seconds(secondsToRun());
  int kills = 0;
  while (SteadyClock::now() < end) {
    // Nothing can be waited for: the moment of the kill is what is random.
    std::this_thread::sleep_for(std::chrono::microseconds(random() % 20'000));
    const std::size_t taker = random() % takers;
    kill(running[taker], SIGKILL);
    waitpid(running[taker], nullptr, 0);
    running[taker] = start(static_cast<int>(taker));
    ++kills;
  }
  for (const pid_t process : running) {
    kill(process, SIGKILL);
    waitpid(process, nullptr, 0);
  }
  std::map<std::string, int> seen;
  for (int taker = 0; taker < takers; ++taker) {
    std::ifstream file(seenFile(taker));
    // A line without an end was broken off by the kill.
    for (std::string line; std::getline(file, line) && !file.eof();) {
      if (line.size() == 18) ++seen[line];
    }
  }
  EXPECT_GT(seen.size(), 100U);
  EXPECT_GT(kills, 20);
  const std::uint64_t next = numbers.range()->next;
  for (const auto& [number, times] : seen) {
    ASSERT_EQ(times, 1) << number;
    ASSERT_LT(std::stoull(number.substr(8, 9)), next) << number;
  }
  std::cout << kills << " kills, " << seen.size() << " numbers seen of " << next - 1 << " taken\n";
}

}  // namespace
}  // namespace awizo
