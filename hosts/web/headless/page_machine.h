#pragma once

#include <optional>

#include "hosts/headless/machine.h"
#include "hosts/web/core/page_files.h"
#include "hosts/web/core/page_http.h"
#include "hosts/web/core/page_records.h"
#include "hosts/web/core/page_shared_store.h"

namespace awizo::web {

/// The machine behind the border.
class PageMachine final : public headless::Machine {
 public:
  PageMachine();

  Http& http() override { return http_; }
  Files& files() override { return files_; }
  std::unique_ptr<Clock> clock(const Options& options) override;
  std::unique_ptr<SettingsStore> settings(const Options& options) override;
  std::string localeName() override;
  std::unique_ptr<Locale> locale(const std::string& name) override;
  std::string readFile(const std::string& path) override { return readPageFile(path); }
  std::unique_ptr<GrowingFile> newFile(const std::string& path) override {
    return newPageFile(path);
  }
  RecordFolder* records() override { return records_ ? &*records_ : nullptr; }
  /// Under Node a session is named by the options.
  bool hasStartPage() override { return records_.has_value(); }
  SharedStore* numbers() override { return numbers_ ? &*numbers_ : nullptr; }
  bool isBrowser() override { return true; }
  bool seesWaitingLines() override { return true; }
  bool lineWaits() override;
  std::string absolutePath(const std::string& path) override;

 private:
  PageHttp http_;
  PageFiles files_;
  std::optional<PageRecords> records_;
  std::optional<PageSharedStore> numbers_;
};

}  // namespace awizo::web
