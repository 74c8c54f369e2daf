#pragma once

#include <memory>
#include <string>

#include "hosts/common/options.h"
#include "platform/clock.h"
#include "platform/settings.h"

namespace awizo {

/// The machine's clock, or a fixed time where the options say so.
std::unique_ptr<Clock> makeClock(const Options& options);

/// The store that the options choose, in files of the machine. Raises the error of a file that
/// can't be written.
std::unique_ptr<SettingsStore> makeSettings(const Options& options);

/// The beginning of the paths of the files that hold the firm's package numbers: beside that
/// settings file, or in the folder of off-line work where the settings are in memory.
std::string numbersBeginning(const Options& options);

}  // namespace awizo
