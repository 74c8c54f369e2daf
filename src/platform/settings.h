#pragma once

#include <string>
#include <string_view>

namespace awizo {

/// Per-user settings that outlive the program.
class SettingsStore {
 public:
  virtual ~SettingsStore() = default;
  virtual std::string read(std::string_view application, std::string_view section,
                           std::string_view key, std::string_view defaultValue) = 0;
  virtual void write(std::string_view application, std::string_view section, std::string_view key,
                     std::string_view value) = 0;
};

}  // namespace awizo
