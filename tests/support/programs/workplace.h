#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace awizo::test {

std::string readFile(const std::filesystem::path& path);
void writeFile(const std::filesystem::path& path, std::string_view bytes);

/// A temporary folder with what the supplier's machine has: the local folder with the user's file
/// and the partner's, and room for documents. Gone with this object.
class Workplace {
 public:
  Workplace();
  ~Workplace();
  Workplace(const Workplace&) = delete;
  Workplace& operator=(const Workplace&) = delete;

  /// The local folder.
  std::filesystem::path folder() const { return root_ / "VIRD"; }
  std::filesystem::path documents() const { return root_ / "documents"; }
  std::filesystem::path posted() const { return root_ / "posted"; }
  std::filesystem::path settings() const { return root_ / "settings"; }

 private:
  std::filesystem::path root_;
};

}  // namespace awizo::test
