#pragma once

#include <memory>

#include "hosts/common/options.h"
#include "platform/clock.h"
#include "platform/settings.h"

namespace awizo {

/// The machine's clock, or a fixed time where the options say so.
std::unique_ptr<Clock> makeClock(const Options& options);

/// The file that the options name, else the user's own; with nothing but a folder of off-line work
/// named, a store in memory. That folder is put in. Raises the error of a file that can't be
/// written.
std::unique_ptr<SettingsStore> makeSettings(const Options& options);

}  // namespace awizo
