// The programs as their users start them, against the bare work: parsing the same bytes, showing an
// empty window.

#include <benchmark/benchmark.h>

#include <algorithm>
#include <filesystem>
#include <fstream>

#include "benchmarks/process/child.h"
#include "benchmarks/process/roles.h"
#include "benchmarks/support/full_document.h"
#include "benchmarks/support/full_size.h"
#include "formats/despatch_advice_writer.h"
#include "hosts/common/machine/machine.h"
#include "hosts/desktop/program/addresses.h"
#include "support/files/files.h"
#include "support/programs/demo_service.h"
#include "support/programs/workplace.h"

namespace awizo::benchmarks {
namespace {

namespace fs = std::filesystem;

const std::string self = fs::read_symlink("/proc/self/exe").string();
// What the full-size start may take, as a multiple of a bare window and of bare parsing of the same
// bytes.
constexpr double windowsAllowed = 1.5;
constexpr double parsesAllowed = 1.3;

void put(const fs::path& file, const std::string& text) { std::ofstream(file) << text; }

/// A service with a catalogue and an order at the limits, or a part of these, and the bare files of
/// what it replies.
class LargeService {
 public:
  LargeService(std::int64_t part, Layout layout) {
    const int catalogueLines = mostCatalogueLines / static_cast<int>(part);
    fs::create_directories(data_);
    for (const char* name : {"partner-info.xml", "delivery-places.xml"}) {
      fs::copy_file(test::projectFolder() / "demo/data" / name, data_ / name);
    }
    const std::string goods = laidOut(catalogue(catalogueLines), layout);
    const std::string waiting =
        laidOut(order(mostOrderLines / static_cast<int>(part), catalogueLines), layout);
    put(data_ / "catalogue.xml", goods);
    put(data_ / "order.xml", waiting);
    put(place_.folder() / "catalogue-reply.xml", catalogueReply(goods));
    put(place_.folder() / "order-reply.xml", orderReply(waiting));
  }

  /// Starts a program on line; the order waits again for each one.
  Cost start(std::vector<std::string> command, const std::string& input = "") {
    const test::DemoService service(place_.posted(), {"--data", data_.string()});
    agreeTo(service.pageUrl());
    for (const std::string& option : std::vector<std::string>{
             "--offline-path", place_.folder().string(), "--locale", "ru_RU", "--property",
             "PartnerName=Demo", "--property", "PartnerILN=9520002000019", "--property",
             "PartnerURL=partner", "--settings", place_.settings().string(), "--page-url",
             service.pageUrl(), "--cookie", "demo"}) {
      command.push_back(option);
    }
    const Cost cost = costOf(command, input);
    if (service.requests().size() < 4) std::abort();
    return cost;
  }

  Cost parse() const {
    return costOf({self, "--parse", (place_.folder() / "catalogue-reply.xml").string(),
                   (place_.folder() / "order-reply.xml").string()});
  }

 private:
  /// The user trusts the service's address already.
  void agreeTo(const std::string& page) const {
    Options options;
    options.settingsFile = place_.settings().string();
    AgreedAddresses(*makeSettings(options)).add(originOf(desktop::splitAddress, page));
  }

  test::Workplace place_;
  fs::path data_ = place_.folder() / "data";
};

/// awizo-headless from its start to its end, with all that it asks of a service.
void WholeProcess(benchmark::State& state, Layout layout) {
  LargeService service(state.range(0), layout);
  Cost ours;
  Cost bare;
  for ([[maybe_unused]] const auto turn : state) {
    const Cost run = service.start({AWIZO_HEADLESS_PROGRAM}, "{\"do\":\"show\"}\n");
    const Cost parse = service.parse();
    state.SetIterationTime(run.seconds);
    ours = {ours.seconds + run.seconds, ours.megabytes + run.megabytes};
    bare = {bare.seconds + parse.seconds, bare.megabytes + parse.megabytes};
  }
  state.counters["ratio"] = ours.seconds / bare.seconds;
  state.counters["memoryRatio"] = ours.megabytes / bare.megabytes;
  state.counters["megabytes"] = ours.megabytes / static_cast<double>(state.iterations());
}
// clang-format off
#define WHOLE_PROCESS(layout)                              \
  BENCHMARK_CAPTURE(WholeProcess, layout, Layout::layout) \
      ->Arg(8)->Arg(4)->Arg(2)->Arg(1)->UseManualTime()->Iterations(5)
// clang-format on
WHOLE_PROCESS(compact);
WHOLE_PROCESS(indented);

/// The packing list of the largest document as a PDF, against what a clerk waits for at most and
/// the memory that a small computer has for it.
void MakingThePackingList(benchmark::State& state) {
  constexpr double mostSeconds = 3;
  constexpr double mostMegabytes = 200;
  const int part = static_cast<int>(state.range(0));
  const test::Workplace place;
  const std::string document = (place.folder() / "advice.xml").string();
  test::TestEditor editor;
  fillDocument(editor.editor, mostOrderLines / part, mostPackages / part);
  put(document, MakeDesAdv(editor.editor)->fileBytes());
  Cost all;
  for ([[maybe_unused]] const auto turn : state) {
    const Cost cost = costOf(
        {AWIZO_PAPERS_PROGRAM, "list", document, "-o", (place.folder() / "list.pdf").string()});
    state.SetIterationTime(cost.seconds);
    all = {all.seconds + cost.seconds, all.megabytes + cost.megabytes};
  }
  const auto turns = static_cast<double>(state.iterations());
  state.counters["ratio"] = all.seconds / turns / mostSeconds;
  state.counters["memoryRatio"] = all.megabytes / turns / mostMegabytes;
  state.counters["megabytes"] = all.megabytes / turns;
}
BENCHMARK(MakingThePackingList)->Arg(8)->Arg(4)->Arg(2)->Arg(1)->UseManualTime()->Iterations(3);

/// Time to a painted main window, off line, against a bare window with an empty table.
void ShowingTheMainWindow(benchmark::State& state) {
  const test::Workplace place;
  double ours = 0;
  double bare = 0;
  for ([[maybe_unused]] const auto turn : state) {
    const double seconds =
        costOf({self, "--main-window", "--offline-path", place.folder().string(), "--property",
                "OnLine=Off", "--property", "PartnerILN=9520002000019"})
            .seconds;
    state.SetIterationTime(seconds);
    ours += seconds;
    bare += costOf({self, "--bare-window"}).seconds;
  }
  state.counters["ratio"] = ours / bare;
}
BENCHMARK(ShowingTheMainWindow)->UseManualTime()->Iterations(10);

/// The same on line, up to everything at its limits, against what the window and the documents may
/// take together.
void ShowingTheMainWindowOnLine(benchmark::State& state) {
  LargeService service(state.range(0), Layout::compact);
  double ours = 0;
  double allowed = 0;
  for ([[maybe_unused]] const auto turn : state) {
    const double seconds = service.start({self, "--main-window"}).seconds;
    state.SetIterationTime(seconds);
    ours += seconds;
    allowed += windowsAllowed * costOf({self, "--bare-window"}).seconds +
               parsesAllowed * service.parse().seconds;
  }
  state.counters["ratio"] = ours / allowed;
}
BENCHMARK(ShowingTheMainWindowOnLine)
    ->Arg(8)
    ->Arg(4)
    ->Arg(2)
    ->Arg(1)
    ->UseManualTime()
    ->Iterations(5);

}  // namespace
}  // namespace awizo::benchmarks

int main(int count, char** arguments) {
  namespace benchmarks = awizo::benchmarks;
  const std::vector<std::string> rest(arguments + std::min(count, 2), arguments + count);
  const std::string role = count > 1 ? arguments[1] : "";
  if (role == "--parse") return benchmarks::parseFiles(rest);
  if (role == "--bare-window") return benchmarks::showBareWindow();
  if (role == "--main-window") return benchmarks::showMainWindow(rest);
  benchmark::Initialize(&count, arguments);
  benchmark::RunSpecifiedBenchmarks();
}
