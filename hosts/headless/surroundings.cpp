#include "hosts/headless/surroundings.h"

#include "platform/run_time_error.h"

namespace awizo::headless {

namespace {

std::string readOf(const std::optional<std::string>& value) {
  // A container without a browser's document has nothing to ask.
  if (!value) throw errors::objectNotSet();
  return *value;
}

std::string keyOf(std::string_view application, std::string_view section, std::string_view key) {
  std::string path(application);
  path.append("\n").append(section).append("\n").append(key);
  return path;
}

}  // namespace

std::string OptionsPage::url() { return readOf(options_.pageUrl); }

std::string OptionsPage::cookie() { return readOf(options_.cookie); }

std::string OptionsBag::read(std::string_view name) {
  const auto found = given_.find(std::string(name));
  return found == given_.end() ? "" : found->second;
}

void OptionsBag::write(std::string_view name, std::string_view value) {
  written_[std::string(name)] = value;
}

std::string MemorySettings::read(std::string_view application, std::string_view section,
                                 std::string_view key, std::string_view defaultValue) {
  const auto found = values_.find(keyOf(application, section, key));
  return found == values_.end() ? std::string(defaultValue) : found->second;
}

void MemorySettings::write(std::string_view application, std::string_view section,
                           std::string_view key, std::string_view value) {
  values_[keyOf(application, section, key)] = value;
}

}  // namespace awizo::headless
