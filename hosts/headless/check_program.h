#pragma once

#include "hosts/common/options.h"
#include "hosts/headless/lines.h"
#include "hosts/headless/machine.h"

namespace awizo::headless {

// Exit statuses of a check.
inline constexpr int exitNothingFound = 0;
inline constexpr int exitFound = 1;

/// Writes what of the options' file will be refused, ignored or changed when it is read, a line for
/// each finding. Returns the exit status. Throws std::runtime_error, naming the file, for one that
/// can't be read.
int runCheck(const Options& options, Machine& machine, Lines& lines);

}  // namespace awizo::headless
