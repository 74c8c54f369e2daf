#include "hosts/common/given_host.h"

#include "platform/run_time_error.h"

namespace awizo {

namespace {

std::string readOf(const std::optional<std::string>& value) {
  // A container without a browser's document has nothing to ask.
  if (!value) throw errors::objectNotSet();
  return *value;
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

}  // namespace awizo
