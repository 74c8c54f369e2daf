#pragma once

#include <memory>
#include <string>

#include "hosts/common/options.h"
#include "platform/clock.h"
#include "platform/files.h"
#include "platform/growing_file.h"
#include "platform/http.h"
#include "platform/locale.h"
#include "platform/record_folder.h"
#include "platform/settings.h"
#include "platform/shared_store.h"

namespace awizo::headless {

/// What the program takes from the machine that it runs on, whichever that is. Paths here are the
/// machine's own; failures raise the run-time errors of Files.
class Machine {
 public:
  virtual ~Machine() = default;
  virtual Http& http() = 0;
  virtual Files& files() = 0;
  /// As the options choose.
  virtual std::unique_ptr<Clock> clock(const Options& options) = 0;
  virtual std::unique_ptr<SettingsStore> settings(const Options& options) = 0;
  /// The name of the environment's locale.
  virtual std::string localeName() = 0;
  virtual std::unique_ptr<Locale> locale(const std::string& name) = 0;
  virtual std::string readFile(const std::string& path) = 0;
  /// A file that isn't there yet.
  virtual std::unique_ptr<GrowingFile> newFile(const std::string& path) = 0;
  /// Where sessions are recorded, so that nothing of them is lost; null where the machine's user
  /// says by the options what is recorded.
  virtual RecordFolder* records() { return nullptr; }
  /// Whether a user without a session is shown the start page.
  virtual bool hasStartPage() { return false; }
  /// Whether the user works in a browser, which keeps some keys to itself.
  virtual bool isBrowser() { return false; }
  /// Where the firm's package numbers are; null where the machine's user has none.
  virtual SharedStore* numbers() { return nullptr; }
  /// Whether the machine can see that a line of input waits.
  virtual bool seesWaitingLines() { return false; }
  virtual bool lineWaits() { return false; }
  virtual std::string absolutePath(const std::string& path) = 0;
};

/// The name of the locale that the options choose.
inline std::string localeName(const Options& options, Machine& machine) {
  return options.locale.empty() ? machine.localeName() : options.locale;
}

}  // namespace awizo::headless
