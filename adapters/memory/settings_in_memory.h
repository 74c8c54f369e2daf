#pragma once

#include <map>
#include <string>
#include <string_view>

#include "platform/settings.h"

namespace awizo {

/// Settings that end with the program.
class SettingsInMemory : public SettingsStore {
 public:
  std::string read(std::string_view application, std::string_view section, std::string_view key,
                   std::string_view defaultValue) override;
  void write(std::string_view application, std::string_view section, std::string_view key,
             std::string_view value) override;

  /// By "application\section\key".
  std::map<std::string, std::string> values;
};

}  // namespace awizo
