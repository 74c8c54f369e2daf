#pragma once

#include <string>
#include <vector>

namespace awizo::benchmarks {

/// What a program took from its start to its end.
struct Cost {
  double seconds = 0;    ///< of the processor, its own and the system's for it
  double megabytes = 0;  ///< at most at any time
};

/// Runs a program with this standard input; what it prints is thrown away. Stops the benchmarks if
/// it ends with another status than 0.
Cost costOf(const std::vector<std::string>& command, const std::string& input = "");

}  // namespace awizo::benchmarks
