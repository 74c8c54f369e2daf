#include "hosts/common/program/chosen.h"

#include "adapters/memory/fixed_clock.h"
#include "adapters/memory/settings_in_memory.h"
#include "session/record/off_line_path.h"

namespace awizo {

std::unique_ptr<SettingsStore> chosenSettings(const Options& options, const FileSettings& ofFile) {
  std::unique_ptr<SettingsStore> settings;
  if (!options.settingsFile && options.offLinePath) {
    settings = std::make_unique<SettingsInMemory>();
  } else {
    settings = ofFile(options.settingsFile);
  }
  if (options.offLinePath) keepOffLinePath(*settings, *options.offLinePath);
  return settings;
}

std::unique_ptr<Clock> chosenClock(const Options& options, std::unique_ptr<Clock> running) {
  if (options.now) return std::make_unique<FixedClock>(*options.now);
  return running;
}

}  // namespace awizo
