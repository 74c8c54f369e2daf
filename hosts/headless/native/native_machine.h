#pragma once

#include "hosts/headless/machine.h"

namespace awizo::headless {

/// The computer's own clock, locale, settings and records, with this network and these files.
class NativeMachine final : public Machine {
 public:
  NativeMachine(Http& http, Files& files) : http_(http), files_(files) {}

  Http& http() override { return http_; }
  Files& files() override { return files_; }
  std::unique_ptr<Clock> clock(const Options& options) override;
  std::unique_ptr<SettingsStore> settings(const Options& options) override;
  std::string localeName() override;
  std::unique_ptr<Locale> locale(const std::string& name) override;
  std::string readFile(const std::string& path) override;
  std::unique_ptr<GrowingFile> newFile(const std::string& path) override;
  std::string absolutePath(const std::string& path) override;

 private:
  Http& http_;
  Files& files_;
};

}  // namespace awizo::headless
