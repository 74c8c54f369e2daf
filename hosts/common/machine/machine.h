#pragma once

#include <memory>

#include "hosts/common/options.h"
#include "platform/clock.h"
#include "platform/settings.h"

namespace awizo {

/// The machine's clock, or a fixed time where the options say so.
std::unique_ptr<Clock> makeClock(const Options& options);

/// The store that the options choose, in files of the machine. Raises the error of a file that
/// can't be written.
std::unique_ptr<SettingsStore> makeSettings(const Options& options);

}  // namespace awizo
