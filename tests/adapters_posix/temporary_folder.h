#pragma once

#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "platform/run_time_error.h"

namespace awizo::test {

/// A folder of its own for each test, removed at the end.
class TemporaryFolder {
 public:
  TemporaryFolder() {
    std::string name = std::filesystem::temp_directory_path() / "awizo-test-XXXXXX";
    if (!mkdtemp(name.data())) std::abort();
    path_ = name;
    std::filesystem::permissions(path_, std::filesystem::perms::all);
  }
  ~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  const std::filesystem::path& path() const { return path_; }

  std::string put(const std::string& name, const std::string& bytes) const {
    std::ofstream(path_ / name, std::ios::binary) << bytes;
    return path_ / name;
  }

  std::string bytes(const std::string& name) const {
    std::ifstream file(path_ / name, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }

  /// All that is in it, hidden files too.
  std::vector<std::string> names() const {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(path_)) {
      names.push_back(entry.path().filename());
    }
    std::sort(names.begin(), names.end());
    return names;
  }

 private:
  std::filesystem::path path_;
};

/// The number of the run-time error that the work raises; 0 for none.
template <typename Work>
int errorOf(Work work) {
  try {
    work();
  } catch (const RunTimeError& error) {
    return error.number();
  }
  return 0;
}

/// The same in a process of its own, whose user is bound by permissions even when the tests run
/// as root. The number must fit an exit code.
template <typename Work>
void expectErrorForOrdinaryUser(int number, Work work) {
  EXPECT_EXIT(
      {
        constexpr unsigned nobody = 65534;
        if (geteuid() == 0 && setresuid(nobody, nobody, nobody) != 0) _exit(254);
        _exit(errorOf(work));
      },
      testing::ExitedWithCode(number), "");
}

}  // namespace awizo::test
