// Kills the editor at random moments of a save. Each time the file must be the whole old one or the
// whole new one.

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdlib>
#include <random>
#include <thread>

#include "killing/folder_watch.h"
#include "killing/prepared_editor.h"
#include "support/environment.h"
#include "support/files/files.h"

namespace awizo::test {
namespace {

using Clock = std::chrono::steady_clock;
using Microseconds = std::chrono::microseconds;
namespace fs = std::filesystem;

Microseconds since(Clock::time_point moment) {
  return std::chrono::duration_cast<Microseconds>(Clock::now() - moment);
}

/// How long to wait before a kill, at most. How fast a save is changes with what else the machine
/// does: the time shrinks with each kill that came too late and grows with each that didn't.
class Patience {
 public:
  void set(Microseconds longest) { longest_ = longest; }
  Microseconds longest() const { return longest_; }
  void learn(bool cameTooLate) {
    longest_ = cameTooLate ? longest_ * 4 / 5 : longest_ * 6 / 5 + Microseconds(1);
  }

 private:
  Microseconds longest_{};
};

/// Where a kill fell, by what the folder heard of it.
struct Tally {
  int kills = 0;
  int beforeTheNewFile = 0;
  int whileItWasWritten = 0;  ///< between the opening of the temporary file and the rename
  int afterTheRename = 0;
  int ended = 0;  ///< the editor had ended before the kill came
};

class Killing : public testing::Test {
 protected:
  /// Starts a fork of the prepared editor, which saves and ends. Returns in this process alone.
  pid_t startSaving() {
    watch_.startAnew();
    const pid_t editor = fork();
    if (editor == 0) isFork_ = true;
    return editor;
  }

  static int waitForEnd(pid_t editor) {
    int status = 0;
    waitpid(editor, &status, 0);
    return status;
  }

  Microseconds anyMomentOf(Microseconds span) {
    return Microseconds(std::uniform_int_distribution<long>(0, span.count())(chance_));
  }

  /// The document that a save leaves which nobody disturbs, and how long it takes.
  void learn();
  void killOnce(bool onceTheFileIsOpen);
  void check(int status);
  void removeLeftovers() const;
  /// A fifth of the kills that are wanted must fall where the new file is half there. On a busy
  /// machine more kills are needed for that.
  bool hitEnough(int wanted) const { return tally_.whileItWasWritten * 5 >= wanted; }

  Workplace place_;
  PreparedEditor editor_{place_};
  FolderWatch watch_{place_.documents()};
  std::mt19937 chance_{static_cast<unsigned>(fromEnvironment("AWIZO_RANDOM_SEED", 20261121))};
  bool isFork_ = false;
  std::string newDocument_;
  std::string oldDocument_;
  Patience beforeOpening_;  ///< from the click on
  Patience afterOpening_;   ///< from the opening of the temporary file on
  Tally tally_;
};

void Killing::learn() {
  const Clock::time_point start = Clock::now();
  const pid_t editor = startSaving();
  if (isFork_) return;
  ASSERT_TRUE(watch_.waitForNewFile());
  const Clock::time_point opened = Clock::now();
  ASSERT_EQ(waitForEnd(editor), 0);
  afterOpening_.set(since(opened));
  beforeOpening_.set(since(start));
  newDocument_ = readFile(editor_.target());
  ASSERT_GT(newDocument_.size(), 900'000U);
  oldDocument_ = newDocument_;
  oldDocument_.replace(oldDocument_.find("WZ-7"), 4, "OLD1");
}

void Killing::killOnce(bool onceTheFileIsOpen) {
  writeFile(editor_.target(), oldDocument_);
  Patience& patience = onceTheFileIsOpen ? afterOpening_ : beforeOpening_;
  const pid_t editor = startSaving();
  if (isFork_) return;
  if (onceTheFileIsOpen) {
    ASSERT_TRUE(watch_.waitForNewFile());
  }
  std::this_thread::sleep_for(anyMomentOf(patience.longest()));
  kill(editor, SIGKILL);
  check(waitForEnd(editor));
  patience.learn(watch_.renamed());
}

void Killing::check(int status) {
  watch_.catchUp();
  ++tally_.kills;
  const std::string document = readFile(editor_.target());
  if (!WIFSIGNALED(status)) {
    ++tally_.ended;
  } else if (watch_.renamed()) {
    ++tally_.afterTheRename;
  } else if (watch_.created()) {
    ++tally_.whileItWasWritten;
  } else {
    ++tally_.beforeTheNewFile;
  }
  // EXPECT_EQ would print megabytes.
  EXPECT_TRUE(document == (watch_.renamed() ? newDocument_ : oldDocument_))
      << "after kill " << tally_.kills << " the file has " << document.size() << " bytes";
  removeLeftovers();
}

/// A killed editor can't take its temporary file with it.
void Killing::removeLeftovers() const {
  for (const fs::directory_entry& entry : fs::directory_iterator(place_.documents())) {
    if (entry.path().filename().string().starts_with(".awizo-")) fs::remove(entry);
  }
}

TEST_F(Killing, LeavesTheWholeOldOrTheWholeNewFile) {
  const int wanted = fromEnvironment("AWIZO_KILLS", 40);
  editor_.run([&] {
    learn();
    const auto enough = [&] { return tally_.kills >= wanted && hitEnough(wanted); };
    while (!isFork_ && !HasFailure() && !enough() && tally_.kills < 4 * wanted) {
      killOnce(tally_.kills % 2 == 0);
    }
  });
  if (isFork_) _exit(0);
  EXPECT_TRUE(hitEnough(wanted));
  std::printf(
      "%d kills: %d before the new file was opened, %d between its opening and the rename, %d "
      "after the rename, %d too late\n",
      tally_.kills, tally_.beforeTheNewFile, tally_.whileItWasWritten, tally_.afterTheRename,
      tally_.ended);
}

}  // namespace
}  // namespace awizo::test
