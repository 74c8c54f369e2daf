#pragma once

#include <string_view>

#include "platform/settings.h"

namespace awizo {

/// Under this name the settings keep what is the desk's and not the control's.
inline constexpr std::string_view deskSettings = "Awizo";

/// Whether sessions are recorded, which the user may not want.
bool recordsAreWanted(SettingsStore& settings);

}  // namespace awizo
