// What the record of a session costs at full size, and how soon a replay is through.

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <string>

#include "adapters/posix/posix_growing_file.h"
#include "adapters/posix/posix_record_folder.h"
#include "benchmarks/support/compare.h"
#include "benchmarks/support/full_size.h"
#include "journal/history.h"
#include "journal/loading.h"
#include "journal/record_file.h"
#include "tests/support/control/taped_control.h"
#include "tests/support/files/files.h"
#include "tests/support/files/temporary_folder.h"

namespace awizo::benchmarks {
namespace {

constexpr double secondsAllowedAnAct = 0.0002;
constexpr double secondsAllowedForAReplay = 2;
constexpr double secondsAllowedForTakingBack = 2;
constexpr std::size_t actsOfADay = 5000;
constexpr int lineCommits = 250;
constexpr int packages = 125;
constexpr int headerFields = 125;

void start(test::TapedControl& session) {
  test::TestControl& desk = session.desk;
  desk.prepareFolder();
  desk.preparePage();
  desk.http.reply(test::TestControl::partnerInfo("ООО Покупатель"));
  desk.http.reply(catalogueReply(catalogue(mostCatalogueLines)));
  desk.http.reply("<dictionary-response><status>UNCHANGED</status></dictionary-response>");
  desk.http.reply(orderReply(order(mostOrderLines, mostCatalogueLines)));
  session.recording->start();
  session.show();
  if (desk.session.LineCount != mostOrderLines) std::abort();
}

test::TapedControl recordedInto(const NewRecord& record) {
  return test::TapedControl(record.file.get(), {}, test::TapedControl::unchanged, "ru_RU",
                            record.texts.get());
}

/// Accepts each line as it is; makes top packages.
void actOn(AwizoWysylki& control, const Form& form) {
  if (&form == &control.dlgDodaj) return control.dlgDodaj.btnDodaj.userClick();
  DlgSzczegoly& package = control.dlgSzczegoly;
  // A second package of the same words would be refused.
  package.txtPackageDesc.userType("Паллета " +
                                  std::to_string(control.editor.session.IloscPozycjiOpak));
  package.cboxILNLokalizacji.userType("9520002001016");
  package.txtSerialNumberN.userType("035200010000000016");
  package.btnDodaj.userClick();
}

/// Half of the acts are line commits, a quarter packages.
void work(test::TapedControl& session) {
  AwizoWysylki& control = session.desk.control;
  session.desk.face.actUnscripted = [&](Form& form) {
    actOn(control, form);
    if (form.shown()) form.userClose();
  };
  session.desk.face.answerUnscripted = [](const MessageBox&) { return Answer::yes; };
  for (int line = 1; line <= lineCommits; ++line) {
    control.form.grdPozycje.userCell(line, 1);
    control.form.btnEdytuj.userClick();
  }
  for (int package = 0; package < packages; ++package) control.form.btnDodajOpak.userClick();
  for (int field = 0; field < headerFields; ++field) {
    control.form.txtNrAwiza.userType(std::to_string(field));
  }
}

/// The time from the start to the user's turn with a record in a folder, against none: with a
/// catalogue that lies there already for another session, and with one that has to be written.
void StartingWithARecord(benchmark::State& state, bool shared) {
  double with = 0;
  double without = 0;
  for ([[maybe_unused]] const auto turn : state) {
    const test::TemporaryFolder home;
    PosixRecordFolder folder((home.path() / "records").string());
    const NewRecord another = folder.create();
    const NewRecord own = folder.create();
    if (shared) {
      test::TapedControl earlier = recordedInto(another);
      start(earlier);
    }
    test::TapedControl recorded = recordedInto(own);
    test::TapedControl bare(nullptr);
    const double seconds = secondsOf([&] { start(recorded); });
    with += seconds;
    without += secondsOf([&] { start(bare); });
    state.SetIterationTime(seconds);
  }
  state.counters["ratio"] = with / without;
}

/// The processor's time that a record takes of an act, the state's digests included.
void RecordingAnAct(benchmark::State& state) {
  double cost = 0;
  for ([[maybe_unused]] const auto turn : state) {
    const test::TemporaryFolder folder;
    PosixGrowingFile file((folder.path() / "record").string());
    test::TapedControl recorded(&file);
    // What is needed to take acts back is part of the cost.
    const journal::History history(recorded.tape, recorded.desk.control);
    test::TapedControl bare(nullptr);
    start(recorded);
    start(bare);
    const std::size_t before = recorded.tape.deeds();
    const double with = secondsOf([&] { work(recorded); });
    const double without = secondsOf([&] { work(bare); });
    const double anAct = (with - without) / static_cast<double>(recorded.tape.deeds() - before);
    state.SetIterationTime(anAct);
    cost += anAct;
  }
  state.counters["ratio"] = cost / static_cast<double>(state.iterations()) / secondsAllowedAnAct;
}

/// A start on line and a day's work, from the file's bytes to the user's turn.
void ReplayingADay(benchmark::State& state) {
  const test::TemporaryFolder folder;
  const std::string path = (folder.path() / "record").string();
  {
    PosixGrowingFile file(path);
    file.append(journal::fileBeginning() + journal::framed(journal::headerRecord({})));
    test::TapedControl recorded(&file);
    start(recorded);
    work(recorded);
  }
  double cost = 0;
  for ([[maybe_unused]] const auto turn : state) {
    const double seconds = secondsOf([&] {
      test::TapedControl replayed(nullptr, journal::recordedSession(test::readFile(path)).records);
      replayed.recording->start();
      if (replayed.desk.form.txtNrAwiza.text().empty()) std::abort();
    });
    state.SetIterationTime(seconds);
    cost += seconds;
  }
  state.counters["ratio"] =
      cost / static_cast<double>(state.iterations()) / secondsAllowedForAReplay;
}

/// After a day's work, steps are taken back and done again, one by one: the longest of them.
void TakingBackAfterADay(benchmark::State& state) {
  const test::TemporaryFolder folder;
  PosixGrowingFile file((folder.path() / "record").string());
  test::TapedControl session(&file);
  journal::History history(session.tape, session.desk.control);
  start(session);
  while (session.tape.deeds() < actsOfADay) work(session);
  const int packagesOfADay = session.desk.session.IloscPozycjiOpak;
  double longest = 0;
  const auto travel = [&](void (journal::History::*act)()) {
    for (int step = 0; step < packages; ++step) {
      const double seconds = secondsOf([&] { (history.*act)(); });
      longest = std::max(longest, seconds);
    }
  };
  for ([[maybe_unused]] const auto turn : state) {
    longest = 0;
    travel(&journal::History::takeBack);
    // The header's number ends as the work before has left it, which is no step.
    if (session.desk.session.IloscPozycjiOpak != packagesOfADay - packages) std::abort();
    travel(&journal::History::doAgain);
    if (session.desk.session.IloscPozycjiOpak != packagesOfADay) std::abort();
    state.SetIterationTime(longest);
  }
  state.counters["ratio"] = longest / secondsAllowedForTakingBack;
}

BENCHMARK_CAPTURE(StartingWithARecord, shared, true)->UseManualTime()->Iterations(5);
BENCHMARK_CAPTURE(StartingWithARecord, alone, false)->UseManualTime()->Iterations(5);
BENCHMARK(RecordingAnAct)->UseManualTime()->Iterations(3);
BENCHMARK(ReplayingADay)->UseManualTime()->Iterations(3);
BENCHMARK(TakingBackAfterADay)->UseManualTime()->Iterations(3);

}  // namespace
}  // namespace awizo::benchmarks
