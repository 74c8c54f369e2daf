#pragma once

#include <filesystem>
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

 private:
  ChildProcess program_;
  std::filesystem::path postedFolder_;
  std::string pageUrl_;
};

}  // namespace awizo::test
