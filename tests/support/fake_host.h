#pragma once

#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "platform/host.h"
#include "platform/run_time_error.h"

namespace awizo::test {

/// The page that hosts the control. A text that isn't set makes its read raise an error, as in a
/// container without a page.
class FakePage : public HostPage {
 public:
  std::optional<std::string> pageUrl;
  std::optional<std::string> pageCookie;

  std::string url() override { return valueOf(pageUrl); }
  std::string cookie() override { return valueOf(pageCookie); }

 private:
  static std::string valueOf(const std::optional<std::string>& text) {
    if (!text) throw errors::objectNotSet();
    return *text;
  }
};

/// The host's property bag: what it holds, which reads and writes fail, what was written.
class FakeBag : public PropertyBag {
 public:
  std::map<std::string, std::string, std::less<>> values;
  std::set<std::string, std::less<>> failing;
  std::vector<std::string> writtenNames;

  std::string read(std::string_view name) override {
    requireWorking(name);
    const auto found = values.find(name);
    return found == values.end() ? "" : found->second;
  }

  void write(std::string_view name, std::string_view value) override {
    requireWorking(name);
    values.insert_or_assign(std::string(name), std::string(value));
    writtenNames.emplace_back(name);
  }

 private:
  void requireWorking(std::string_view name) const {
    if (failing.contains(name)) throw errors::invalidProcedureCall();
  }
};

/// Keeps the names of the properties that the control reported as changed.
class FakeControlHost : public ControlHost {
 public:
  std::vector<std::string> changedProperties;
  /// What the host does when it is notified of a change.
  std::function<void()> onPropertyChanged;

  void propertyChanged(std::string_view name) override {
    changedProperties.emplace_back(name);
    if (onPropertyChanged) onPropertyChanged();
  }
};

}  // namespace awizo::test
