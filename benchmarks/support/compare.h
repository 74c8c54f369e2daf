#pragma once

#include <benchmark/benchmark.h>

#include <ctime>

namespace awizo::benchmarks {

/// Seconds of the processor that the work takes, whatever else the machine is busy with.
template <class Work>
double secondsOf(Work&& work) {
  const auto now = [] {
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
  };
  const double start = now();
  work();
  return now() - start;
}

/// Runs our work and the bare work by turns; reports the time of ours and its ratio to the bare.
/// `prepare` runs before each turn, untimed.
template <class Prepare, class Ours, class Bare>
void compare(benchmark::State& state, Prepare&& prepare, Ours&& ours, Bare&& bare) {
  double oursTotal = 0;
  double bareTotal = 0;
  for ([[maybe_unused]] const auto turn : state) {
    prepare();
    const double seconds = secondsOf(ours);
    oursTotal += seconds;
    state.SetIterationTime(seconds);
    // Last, since the allocator tidies up what a freed document leaves at a later call.
    bareTotal += secondsOf(bare);
  }
  state.counters["ratio"] = oursTotal / bareTotal;
}

}  // namespace awizo::benchmarks
