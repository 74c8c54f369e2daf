#include "desk/desk_settings.h"

#include "platform/run_time_error.h"

namespace awizo {
namespace {

constexpr std::string_view yes = "yes";
constexpr std::string_view no = "no";
constexpr std::string_view switchesSection = "Switches";

std::string_view keyOf(DeskSwitch which) {
  return which == DeskSwitch::packingPane ? "PackingPane" : "ScannerPacks";
}

}  // namespace

bool recordsAreWanted(SettingsStore& settings) {
  return settings.read(deskSettings, "Records", "Keep", yes) != no;
}

bool isOn(SettingsStore& settings, DeskSwitch which) {
  return settings.read(deskSettings, switchesSection, keyOf(which), no) == yes;
}

void setOn(SettingsStore& settings, DeskSwitch which, bool on) {
  caughtError([&] { settings.write(deskSettings, switchesSection, keyOf(which), on ? yes : no); });
}

}  // namespace awizo
