#include "support/files/files.h"

#include <fstream>
#include <iterator>
#include <stdexcept>

namespace awizo::test {

std::filesystem::path projectFolder() { return AWIZO_SOURCE_DIR; }

std::string readFile(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  if (!file) throw std::runtime_error("can't read " + path.string());
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

std::string projectFile(std::string_view path) { return readFile(projectFolder() / path); }

void writeFile(const std::filesystem::path& path, std::string_view bytes) {
  std::ofstream file(path, std::ios::binary);
  file << bytes;
  if (!file.flush()) throw std::runtime_error("can't write " + path.string());
}

}  // namespace awizo::test
