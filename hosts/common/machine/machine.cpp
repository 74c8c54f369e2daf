#include "hosts/common/machine/machine.h"

#include "adapters/posix/clocks.h"
#include "adapters/posix/settings_stores.h"
#include "hosts/common/program/chosen.h"

namespace awizo {

std::unique_ptr<Clock> makeClock(const Options& options) {
  return chosenClock(options, std::make_unique<SystemClock>());
}

std::unique_ptr<SettingsStore> makeSettings(const Options& options) {
  return chosenSettings(options, [](const std::optional<std::string>& file) {
    return std::make_unique<SettingsFile>(file ? *file : SettingsFile::usersOwnPath());
  });
}

std::string numbersBeginning(const Options& options) {
  const bool isInMemory = !options.settingsFile && options.offLinePath;
  if (isInMemory) return *options.offLinePath + "/numbers-";
  return options.settingsFile.value_or(SettingsFile::usersOwnPath()) + "-numbers-";
}

}  // namespace awizo
