#pragma once

#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <utility>

#include "hosts/common/options.h"
#include "platform/host.h"

namespace awizo {

/// The hosting page as the options describe it.
class OptionsPage : public HostPage {
 public:
  explicit OptionsPage(const Options& options) : options_(options) {}
  std::string url() override;
  std::string cookie() override;

 private:
  const Options& options_;
};

/// The property bag: what the options put in is read, what the control writes is kept apart.
class OptionsBag : public PropertyBag {
 public:
  explicit OptionsBag(const Options& options) : given_(options.properties) {}
  std::string read(std::string_view name) override;
  void write(std::string_view name, std::string_view value) override;
  /// What the control wrote.
  const std::map<std::string, std::string>& written() const { return written_; }

 private:
  std::map<std::string, std::string> given_;
  std::map<std::string, std::string> written_;
};

/// Passes on which property the control reports as changed.
class ReportingHost : public ControlHost {
 public:
  explicit ReportingHost(std::function<void(std::string_view)> report)
      : report_(std::move(report)) {}
  void propertyChanged(std::string_view name) override { report_(name); }

 private:
  std::function<void(std::string_view)> report_;
};

}  // namespace awizo
