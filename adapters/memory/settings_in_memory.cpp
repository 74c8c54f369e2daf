#include "adapters/memory/settings_in_memory.h"

#include "platform/text.h"

namespace awizo {
namespace {

std::string nameOf(std::string_view application, std::string_view section, std::string_view key) {
  return joined({application, "\\", section, "\\", key});
}

}  // namespace

std::string SettingsInMemory::read(std::string_view application, std::string_view section,
                                   std::string_view key, std::string_view defaultValue) {
  const auto found = values.find(nameOf(application, section, key));
  return found == values.end() ? std::string(defaultValue) : found->second;
}

void SettingsInMemory::write(std::string_view application, std::string_view section,
                             std::string_view key, std::string_view value) {
  values[nameOf(application, section, key)] = value;
}

}  // namespace awizo
