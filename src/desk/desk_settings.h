#pragma once

#include <string_view>

#include "platform/settings.h"

namespace awizo {

/// Under this name the settings keep what is the desk's and not the control's.
inline constexpr std::string_view deskSettings = "Awizo";

/// Whether sessions are recorded, which the user may not want.
bool recordsAreWanted(SettingsStore& settings);

/// What the user switches on and off; it is off at first.
enum class DeskSwitch {
  packingPane,  ///< the pane that shows what lies where
  scannerPacks  ///< a scanned product is put into the current package
};
bool isOn(SettingsStore& settings, DeskSwitch which);
/// Settings that can't be written keep what they had.
void setOn(SettingsStore& settings, DeskSwitch which, bool on);

}  // namespace awizo
