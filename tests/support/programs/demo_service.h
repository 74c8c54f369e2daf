#pragma once

#include <filesystem>
#include <nlohmann/json.hpp>
#include <string>
#include <string_view>
#include <vector>

#include "support/programs/child_process.h"

namespace awizo::test {

/// A running awizo-demo-service on a free port.
class DemoService {
 public:
  /// Posted documents go into `postedFolder`; further options as the program takes them.
  explicit DemoService(const std::filesystem::path& postedFolder,
                       const std::vector<std::string>& options = {});

  /// Address of the host page.
  const std::string& pageUrl() const { return pageUrl_; }
  /// What was posted, in order; each a document as it came.
  std::vector<std::string> posted() const;
  /// Lets exchanges fail from now on: lines "order=drop".
  void setFaults(const std::string& faults);
  /// The requests so far, as the service remembers them: exchange, target, cookie, contentType,
  /// body.
  nlohmann::ordered_json requests() const;

 private:
  ChildProcess program_;
  std::filesystem::path postedFolder_;
  int port_ = 0;
  std::string pageUrl_;
};

}  // namespace awizo::test
