#pragma once

#include <string>
#include <string_view>

#include "platform/settings.h"

namespace awizo {

// The one value that outlives the program: the local folder, a classic path.

/// The empty text where none was kept.
std::string keptOffLinePath(SettingsStore& settings);
void keepOffLinePath(SettingsStore& settings, std::string_view path);

}  // namespace awizo
