#pragma once

#include "hosts/common/options.h"
#include "hosts/headless/lines.h"
#include "hosts/headless/machine.h"

namespace awizo::headless {

// Exit statuses.
inline constexpr int exitDone = 0;
inline constexpr int exitEndedBySystem = 1;  ///< the control couldn't be set up
inline constexpr int exitBadArguments = 2;
inline constexpr int exitReplayDiffers = 4;
inline constexpr int exitInputEndedEarly = 3;  ///< under an open box or modal form

/// Creates the control, serves the lines and takes the control down at their end. Returns
/// the exit status. Throws RunTimeError where the settings asked for can't be kept.
int runHeadless(const Options& options, Machine& machine, Lines& lines);

}  // namespace awizo::headless
