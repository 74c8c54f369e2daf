#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "hosts/common/options.h"
#include "platform/clock.h"
#include "platform/settings.h"

namespace awizo {

/// The store of this file; of the user's own where none is named.
using FileSettings =
    std::function<std::unique_ptr<SettingsStore>(const std::optional<std::string>& file)>;

/// The store that the options choose: of the file that they name, else of the user's own; with
/// nothing but a folder of off-line work named, one in memory. That folder is put in. Raises the
/// error of a file that can't be written.
std::unique_ptr<SettingsStore> chosenSettings(const Options& options, const FileSettings& ofFile);

/// A fixed time where the options say so, else this clock.
std::unique_ptr<Clock> chosenClock(const Options& options, std::unique_ptr<Clock> running);

}  // namespace awizo
