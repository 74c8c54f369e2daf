#include "desk/desk_settings.h"

namespace awizo {

bool recordsAreWanted(SettingsStore& settings) {
  return settings.read(deskSettings, "Records", "Keep", "yes") != "no";
}

}  // namespace awizo
