#pragma once

#include <benchmark/benchmark.h>

#include <chrono>

namespace awizo::benchmarks {

template <class Work>
double secondsOf(Work&& work) {
  const auto start = std::chrono::steady_clock::now();
  work();
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

/// Runs our work and the bare work by turns; tells the time of ours and its ratio to the bare.
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
