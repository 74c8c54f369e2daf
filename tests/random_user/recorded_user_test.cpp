// A random user's work is recorded, the program killed at a random moment, and the record replayed
// where there are no files, no service and no page: every model must be as it was.

#include <fcntl.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdlib>
#include <map>
#include <random>
#include <set>
#include <thread>

#include "adapters/posix/posix_growing_file.h"
#include "journal/history.h"
#include "journal/loading.h"
#include "journal/record_file.h"
#include "journal/recording.h"
#include "journal/state_digest.h"
#include "random_user/user.h"
#include "support/control/taped_control.h"
#include "support/environment.h"
#include "support/files/files.h"
#include "support/files/temporary_folder.h"

namespace awizo::test {
namespace {

/// A state that was noted while the user's turn was: by the number of acts so far.
struct Note {
  std::uint64_t deeds;
  std::uint64_t digest;
};

/// What a recorded user's control stands on.
struct Recorded {
  journal::Tape tape;
  std::unique_ptr<journal::TapedPlatform> taped;
  std::unique_ptr<journal::Recording> recording;

  Recorded(std::vector<journal::Record> replayed, GrowingFile* file)
      : tape(std::move(replayed), file) {}

  const Platform& between(const Platform& real) {
    taped = std::make_unique<journal::TapedPlatform>(tape, real);
    return taped->platform;
  }
  journal::Recording& attach(AwizoWysylki& control) {
    recording = std::make_unique<journal::Recording>(tape, *taped, control);
    recording->performHostAct = [this, &control](const std::vector<std::string>& texts) {
      show(control, texts);
    };
    return *recording;
  }
  void show(AwizoWysylki& control, const std::vector<std::string>& texts = {"show"}) {
    recording->doHostAct(texts, [&] { control.UserControl_Show(); });
  }
};

/// Takes steps back and does some of them again, now and then.
void takeBackByChance(Dice& dice, journal::History& history) {
  if (!dice.percent(20)) return;
  const int steps = 1 + dice.below(4);
  for (int step = 0; step < steps; ++step) history.takeBack();
  for (int step = dice.below(steps + 1); step > 0; --step) history.doAgain();
}

/// The work that is killed: it notes each state before the user goes on.
[[noreturn]] void workForEver(const std::string& file, int notes, unsigned seed,
                              const std::string& locale) {
  Dice dice(seed);
  PosixGrowingFile record(file);
  record.append(journal::fileBeginning() +
                journal::framed(journal::headerRecord({{"locale", locale}})));
  Recorded recorded({}, &record);
  Beginning beginning;
  beginning.localeName = locale;
  beginning.onLine = dice.percent(60);
  Listener listener;
  AwizoWysylki* made = nullptr;
  std::optional<journal::History> history;
  const auto note = [&] {
    const Note noted{recorded.tape.deeds(), journal::stateDigest(*made)};
    if (write(notes, &noted, sizeof noted) != sizeof noted) _exit(1);
  };
  listener.between = [&](const Platform& real) -> const Platform& {
    return recorded.between(real);
  };
  listener.start = [&](AwizoWysylki& control) {
    made = &control;
    recorded.tape.summary = [&] {
      note();
      return std::vector<std::string>();
    };
    recorded.attach(control).start();
    history.emplace(recorded.tape, control);
    recorded.show(control);
  };
  RandomUser user(dice, beginning, listener);
  while (true) {
    user.act();
    takeBackByChance(dice, *history);
  }
}

/// Where a replay has come to its end.
struct Live {};

/// The digest after a replay, and the number of acts.
Note replayed(journal::RecordedSession session, const std::string& locale) {
  Recorded recorded(std::move(session.records), nullptr);
  TestControl empty(
      locale, [&](const Platform& real) -> const Platform& { return recorded.between(real); });
  empty.face.actUnscripted = [](Form&) { throw Live{}; };
  empty.face.answerUnscripted = [](const MessageBox&) -> Answer { throw Live{}; };
  journal::Recording& recording = recorded.attach(empty.control);
  Note end{};
  recording.onLive = [&] { end = {recorded.tape.deeds(), journal::stateDigest(empty.control)}; };
  try {
    recording.start();
  } catch (const Live&) {
  } catch (const journal::ReplayDiffers& differs) {
    ADD_FAILURE() << "differs at " << differs.deed << ": " << differs.what;
  }
  return end;
}

using Notes = std::multimap<std::uint64_t, std::uint64_t>;

/// Waits for the next note; answers whether there was one.
bool takeNote(int pipe, Notes& notes) {
  Note note{};
  if (read(pipe, &note, sizeof note) != sizeof note) return false;
  notes.emplace(note.deeds, note.digest);
  return true;
}

class RecordedUser : public ::testing::TestWithParam<const char*> {
 protected:
  static void SetUpTestSuite() { unsetenv("AWIZO_SEEN_BOXES"); }

  TemporaryFolder folder;
};

INSTANTIATE_TEST_SUITE_P(Locales, RecordedUser, ::testing::Values("ru_RU", "en_US"));

TEST_P(RecordedUser, KilledAtAnyMomentLosesNoFinishedAct) {
  const int seed = fromEnvironment("AWIZO_RANDOM_SEED", 20261122);
  SCOPED_TRACE("AWIZO_RANDOM_SEED=" + std::to_string(seed));
  std::mt19937 random(static_cast<unsigned>(seed));
  std::uint64_t acts = 0;
  const int kills = fromEnvironment("AWIZO_KILLS", 50) / 2;
  for (int kill = 0; kill < kills; ++kill) {
    const std::string file = (folder.path() / ("record" + std::to_string(kill))).string();
    int ends[2];
    ASSERT_EQ(pipe(ends), 0);
    // All that a session writes of notes fits in, so that nobody waits for the reader.
    fcntl(ends[1], F_SETPIPE_SZ, 1 << 20);
    const auto seedOfSession = static_cast<unsigned>(random());
    const pid_t child = fork();
    if (child == 0) workForEver(file, ends[1], seedOfSession, GetParam());
    close(ends[1]);
    // A slow machine may take long to make a control; its user's work comes after that.
    Notes notes;
    ASSERT_TRUE(takeNote(ends[0], notes));
    std::this_thread::sleep_for(std::chrono::microseconds(30'000 + random() % 200'000));
    ::kill(child, SIGKILL);
    waitpid(child, nullptr, 0);
    while (takeNote(ends[0], notes)) {
    }
    close(ends[0]);

    journal::RecordedSession session = journal::recordedSession(readFile(file));
    // Killed before the control was made: of all moments, at most that one can have been noted.
    if (session.records.empty()) {
      EXPECT_LE(notes.size(), 1U);
      continue;
    }
    const bool endsWithinStart = session.orderArrived;
    const Note end = replayed(std::move(session), GetParam());
    acts += end.deeds;
    // The order had come and the start hadn't ended: nobody has noted the state between.
    if (endsWithinStart) {
      EXPECT_GE(end.deeds, 1U);
      continue;
    }
    const auto [first, last] = notes.equal_range(end.deeds);
    EXPECT_TRUE(
        std::any_of(first, last, [&](const auto& note) { return note.second == end.digest; }))
        << "session " << seedOfSession << " after " << end.deeds << " acts";
  }
  EXPECT_GT(acts, static_cast<std::uint64_t>(kills));
  std::printf("%d kills, %llu acts replayed\n", kills, static_cast<unsigned long long>(acts));
}

TEST_P(RecordedUser, WhoTakesActsBackLeavesTheStateOfOneWhoNeverDidThem) {
  const int seed = fromEnvironment("AWIZO_RANDOM_SEED", 20261122);
  SCOPED_TRACE("AWIZO_RANDOM_SEED=" + std::to_string(seed));
  Dice dice(static_cast<unsigned>(seed));
  int takenBack = 0;
  for (int acts = fromEnvironment("AWIZO_RANDOM_ACTIONS", 1500); acts > 0;) {
    MemoryRecord record;
    Recorded recorded({}, &record);
    Beginning beginning;
    beginning.localeName = GetParam();
    beginning.onLine = dice.percent(60);
    std::optional<journal::History> history;
    AwizoWysylki* made = nullptr;
    Listener listener;
    listener.between = [&](const Platform& real) -> const Platform& {
      return recorded.between(real);
    };
    listener.start = [&](AwizoWysylki& control) {
      made = &control;
      recorded.attach(control).start();
      history.emplace(recorded.tape, control);
      recorded.show(control);
    };
    RandomUser user(dice, beginning, listener);
    const auto length = static_cast<std::size_t>(20 + dice.below(300));
    while (recorded.tape.deeds() < length) {
      user.act();
      const std::size_t before = recorded.tape.deeds();
      takeBackByChance(dice, *history);
      if (recorded.tape.deeds() < before) ++takenBack;
    }
    acts -= user.actions();
    const Note end = replayed(sessionIn(record), GetParam());
    ASSERT_EQ(end.deeds, recorded.tape.deeds());
    ASSERT_EQ(end.digest, journal::stateDigest(*made)) << user.history();
    history.reset();
  }
  EXPECT_GT(takenBack, 20);
}

}  // namespace
}  // namespace awizo::test
