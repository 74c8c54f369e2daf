#pragma once

#include <map>
#include <string>

#include "platform/settings.h"

namespace awizo {

/// Settings in a file of lines "application/section/key=value". Names and values may be any text. A
/// file that isn't there or can't be read leaves the default values; a line of another form is
/// skipped, and lost at the next writing.
class SettingsFile final : public SettingsStore {
 public:
  /// `path` as the system knows it ("/home/anna/.config/awizo/settings"). Missing folders are
  /// created at the first writing.
  explicit SettingsFile(std::string path) : path_(std::move(path)) {}

  /// The user's own: "awizo/settings" below XDG_CONFIG_HOME or ".config" in the home folder.
  static std::string usersOwnPath();

  std::string read(std::string_view application, std::string_view section, std::string_view key,
                   std::string_view defaultValue) override;
  /// Raises the error of a file that can't be written; the old values then stay.
  void write(std::string_view application, std::string_view section, std::string_view key,
             std::string_view value) override;

 private:
  std::map<std::string, std::string> load() const;

  std::string path_;
};

}  // namespace awizo
