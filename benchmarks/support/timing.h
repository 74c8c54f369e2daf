#pragma once

#include <ctime>

namespace awizo::benchmarks {

/// Seconds of the processor that the work takes, whatever else the machine is busy with.
template <class Work>
double processorSecondsOf(Work&& work) {
  const auto now = [] {
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
  };
  const double start = now();
  work();
  return now() - start;
}

}  // namespace awizo::benchmarks
