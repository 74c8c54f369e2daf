#pragma once

#include <string>
#include <utility>

#include "platform/settings.h"

namespace awizo::web {

/// The settings that the page's side keeps.
class PageSettings final : public SettingsStore {
 public:
  /// Of this file; of the user's own place where the name is empty.
  explicit PageSettings(std::string file) : file_(std::move(file)) {}

  std::string read(std::string_view application, std::string_view section, std::string_view key,
                   std::string_view defaultValue) override;
  void write(std::string_view application, std::string_view section, std::string_view key,
             std::string_view value) override;

 private:
  std::string file_;
};

}  // namespace awizo::web
