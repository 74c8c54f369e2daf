#include <benchmark/benchmark.h>
#include <malloc.h>

#include <cstdlib>
#include <fstream>
#include <memory>

#include "benchmarks/support/compare.h"
#include "benchmarks/support/full_size.h"
#include "tests/support/control/test_control.h"

namespace awizo::benchmarks {
namespace {

/// What the service replies, at the limits or a part of these.
struct Replies {
  Replies(int part, Layout layout)
      : catalogue(
            catalogueReply(laidOut(benchmarks::catalogue(mostCatalogueLines / part), layout))),
        order(orderReply(laidOut(
            benchmarks::order(mostOrderLines / part, mostCatalogueLines / part), layout))) {}

  std::string catalogue;
  std::string order;
};

/// A control whose host page is there, and a service that answers from memory.
std::unique_ptr<test::TestControl> preparedControl(const Replies& replies) {
  auto made = std::make_unique<test::TestControl>();
  made->prepareFolder();
  made->preparePage();
  made->create();
  made->http.reply(test::TestControl::partnerInfo("ООО Покупатель"));
  made->http.reply(replies.catalogue);
  made->http.reply("<dictionary-response><status>UNCHANGED</status></dictionary-response>");
  made->http.reply(replies.order);
  return made;
}

void requireFinished(const test::TestControl& control, int orderLines) {
  if (control.session.LineCount != orderLines || !control.session.ProductCatalogLoaded) {
    std::abort();
  }
}

/// A figure of this process in kilobytes: "VmRSS", "VmHWM".
double memoryFigure(const std::string& name) {
  std::ifstream status("/proc/self/status");
  for (std::string line; std::getline(status, line);) {
    if (line.starts_with(name + ":")) return std::stod(line.substr(name.size() + 1));
  }
  std::abort();
}

/// What the process held at most while it worked, over what it held before.
template <class Work>
double peakKilobytesOf(Work&& work) {
  malloc_trim(0);
  std::ofstream("/proc/self/clear_refs") << "5";  // forgets the highest figure so far
  const double before = memoryFigure("VmRSS");
  work();
  return memoryFigure("VmHWM") - before;
}

/// The start on line up to the end of UserControl_Show, against bare parsing of the same bytes.
void StartingOnLine(benchmark::State& state, Layout layout) {
  const int part = static_cast<int>(state.range(0));
  const Replies replies(part, layout);
  double ours = 0;
  double bare = 0;
  for ([[maybe_unused]] const auto turn : state) {
    bare += secondsOf([&] {
      parseBare(replies.catalogue);
      parseBare(replies.order);
    });
    const auto control = preparedControl(replies);
    const double seconds = secondsOf([&] { control->control.UserControl_Show(); });
    requireFinished(*control, mostOrderLines / part);
    ours += seconds;
    state.SetIterationTime(seconds);
  }
  state.counters["ratio"] = ours / bare;
}

/// The same work's peak memory; the bytes themselves count on both sides.
void MemoryOfStartingOnLine(benchmark::State& state, Layout layout) {
  const int part = static_cast<int>(state.range(0));
  const Replies replies(part, layout);
  double ours = 0;
  double bare = 0;
  for ([[maybe_unused]] const auto turn : state) {
    bare += peakKilobytesOf([&] {
      const std::string bytes = replies.catalogue;
      parseBare(bytes);
      parseBare(replies.order);
    });
    ours += peakKilobytesOf([&] {
      const auto control = preparedControl(replies);
      control->control.UserControl_Show();
      requireFinished(*control, mostOrderLines / part);
    });
  }
  state.counters["ratio"] = ours / bare;
  state.counters["megabytes"] = ours / 1024 / static_cast<double>(state.iterations());
}
// clang-format off
#define STARTING(layout)                                            \
  BENCHMARK_CAPTURE(StartingOnLine, layout, Layout::layout)         \
      ->Arg(8)->Arg(4)->Arg(2)->Arg(1)->UseManualTime();            \
  BENCHMARK_CAPTURE(MemoryOfStartingOnLine, layout, Layout::layout) \
      ->Arg(8)->Arg(4)->Arg(2)->Arg(1)->Iterations(3)
// clang-format on
STARTING(compact);
STARTING(indented);

}  // namespace
}  // namespace awizo::benchmarks
