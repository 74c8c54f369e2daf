#include "support/files/temporary_folder.h"

#include <stdlib.h>

#include <algorithm>
#include <stdexcept>

#include "support/files/files.h"

namespace awizo::test {

TemporaryFolder::TemporaryFolder() {
  std::string name = (std::filesystem::temp_directory_path() / "awizo-test-XXXXXX").string();
  if (mkdtemp(name.data()) == nullptr) throw std::runtime_error("no temporary folder");
  path_ = name;
  std::filesystem::permissions(path_, std::filesystem::perms::all);
}

TemporaryFolder::~TemporaryFolder() {
  std::error_code ignored;
  std::filesystem::remove_all(path_, ignored);
}

std::string TemporaryFolder::put(const std::string& name, std::string_view bytes) const {
  writeFile(path_ / name, bytes);
  return path_ / name;
}

std::string TemporaryFolder::bytes(const std::string& name) const { return readFile(path_ / name); }

std::vector<std::string> TemporaryFolder::names() const {
  std::vector<std::string> names;
  for (const auto& entry : std::filesystem::directory_iterator(path_)) {
    names.push_back(entry.path().filename());
  }
  std::sort(names.begin(), names.end());
  return names;
}

}  // namespace awizo::test
