#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace awizo::test {

/// An empty folder of its own that every user of the machine may write to, removed at the end.
class TemporaryFolder {
 public:
  TemporaryFolder();
  ~TemporaryFolder();
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  const std::filesystem::path& path() const { return path_; }

  /// Writes a file; answers its path.
  std::string put(const std::string& name, std::string_view bytes) const;
  std::string bytes(const std::string& name) const;
  /// All that is in it, hidden files too, sorted.
  std::vector<std::string> names() const;

 private:
  std::filesystem::path path_;
};

}  // namespace awizo::test
