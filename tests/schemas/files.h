#pragma once

#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>

namespace awizo::test {

/// A file of the project, by its path from the project's root.
inline std::string projectFile(const std::string& path) {
  std::ifstream file(std::string(AWIZO_SOURCE_DIR) + "/" + path, std::ios::binary);
  if (!file) throw std::runtime_error("no file " + path);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

/// The text with the first `from` replaced; there must be one.
inline std::string with(std::string text, const std::string& from, const std::string& to) {
  const std::size_t at = text.find(from);
  if (at == std::string::npos) throw std::runtime_error("no " + from);
  return text.replace(at, from.size(), to);
}

}  // namespace awizo::test
