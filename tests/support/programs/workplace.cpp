#include "support/programs/workplace.h"

#include <stdlib.h>

#include <fstream>
#include <iterator>
#include <stdexcept>

namespace awizo::test {

namespace fs = std::filesystem;

std::string readFile(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  if (!file) throw std::runtime_error("can't read " + path.string());
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

void writeFile(const fs::path& path, std::string_view bytes) {
  std::ofstream file(path, std::ios::binary);
  file << bytes;
  if (!file.flush()) throw std::runtime_error("can't write " + path.string());
}

Workplace::Workplace() {
  std::string name = (fs::temp_directory_path() / "awizo-test-XXXXXX").string();
  if (mkdtemp(name.data()) == nullptr) throw std::runtime_error("no temporary folder");
  root_ = name;
  fs::copy(fs::path(AWIZO_SOURCE_DIR) / "demo/folder", folder(), fs::copy_options::recursive);
  fs::create_directory(documents());
}

Workplace::~Workplace() {
  std::error_code ignored;
  fs::remove_all(root_, ignored);
}

}  // namespace awizo::test
