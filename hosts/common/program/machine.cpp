#include "hosts/common/program/machine.h"

#include "adapters/memory/fixed_clock.h"
#include "adapters/memory/settings_in_memory.h"
#include "adapters/posix/clocks.h"
#include "adapters/posix/settings_stores.h"
#include "session/record/off_line_path.h"

namespace awizo {

std::unique_ptr<Clock> makeClock(const Options& options) {
  if (options.now) return std::make_unique<FixedClock>(*options.now);
  return std::make_unique<SystemClock>();
}

std::unique_ptr<SettingsStore> makeSettings(const Options& options) {
  std::unique_ptr<SettingsStore> settings;
  if (options.settingsFile) {
    settings = std::make_unique<SettingsFile>(*options.settingsFile);
  } else if (options.offLinePath) {
    settings = std::make_unique<SettingsInMemory>();
  } else {
    settings = std::make_unique<SettingsFile>(SettingsFile::usersOwnPath());
  }
  if (options.offLinePath) keepOffLinePath(*settings, *options.offLinePath);
  return settings;
}

}  // namespace awizo
