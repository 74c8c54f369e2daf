#include "hosts/web/headless/page_machine.h"

#include "hosts/common/program/chosen.h"
#include "hosts/web/core/border.h"
#include "hosts/web/core/page_clock.h"
#include "hosts/web/core/page_locale.h"
#include "hosts/web/core/page_settings.h"

namespace awizo::web {

PageMachine::PageMachine() {
  const Fields folder = askNow({"recordFolder"});
  if (!folder.empty()) records_.emplace(folder[0]);
  const Fields numbers = askNow({"numberFolder"});
  if (!numbers.empty()) numbers_.emplace(numbers[0]);
}

std::unique_ptr<Clock> PageMachine::clock(const Options& options) {
  return chosenClock(options, std::make_unique<PageClock>());
}

std::unique_ptr<SettingsStore> PageMachine::settings(const Options& options) {
  return chosenSettings(options, [](const std::optional<std::string>& file) {
    return std::make_unique<PageSettings>(file.value_or(""));
  });
}

std::string PageMachine::localeName() { return askNow({"localeName"}).at(0); }

std::unique_ptr<Locale> PageMachine::locale(const std::string& name) {
  return std::make_unique<PageLocale>(name);
}

bool PageMachine::lineWaits() { return ask({"lineWaits"}).at(0) == "1"; }

std::string PageMachine::absolutePath(const std::string& path) {
  return askNow({"absolutePath", path}).at(0);
}

}  // namespace awizo::web
