#include "hosts/common/surroundings.h"

#include "adapters/posix/clocks.h"
#include "adapters/posix/settings_stores.h"
#include "platform/run_time_error.h"

namespace awizo {

namespace {

std::string readOf(const std::optional<std::string>& value) {
  // A container without a browser's document has nothing to ask.
  if (!value) throw errors::objectNotSet();
  return *value;
}

}  // namespace

std::string OptionsPage::url() { return readOf(options_.pageUrl); }

std::string OptionsPage::cookie() { return readOf(options_.cookie); }

std::string OptionsBag::read(std::string_view name) {
  const auto found = given_.find(std::string(name));
  return found == given_.end() ? "" : found->second;
}

void OptionsBag::write(std::string_view name, std::string_view value) {
  written_[std::string(name)] = value;
}

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
  if (options.offLinePath) {
    settings->write(settingApplication, settingSection, offLinePathKey, *options.offLinePath);
  }
  return settings;
}

}  // namespace awizo
