#include "hosts/headless/native/native_machine.h"

#include <fcntl.h>

#include <filesystem>

#include "adapters/icu/icu_locale.h"
#include "adapters/posix/descriptor.h"
#include "adapters/posix/posix_growing_file.h"
#include "hosts/common/machine/machine.h"

namespace awizo::headless {

std::unique_ptr<Clock> NativeMachine::clock(const Options& options) { return makeClock(options); }

std::unique_ptr<SettingsStore> NativeMachine::settings(const Options& options) {
  return makeSettings(options);
}

std::string NativeMachine::localeName() { return IcuLocale::environmentName(); }

std::unique_ptr<Locale> NativeMachine::locale(const std::string& name) {
  return std::make_unique<IcuLocale>(name);
}

std::string NativeMachine::readFile(const std::string& path) {
  return posix::Descriptor(path, O_RDONLY).readAll();
}

std::unique_ptr<GrowingFile> NativeMachine::newFile(const std::string& path) {
  return std::make_unique<PosixGrowingFile>(path);
}

std::string NativeMachine::absolutePath(const std::string& path) {
  return std::filesystem::absolute(path).string();
}

}  // namespace awizo::headless
