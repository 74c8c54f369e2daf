#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace awizo::test {

/// The project's root.
std::filesystem::path projectFolder();

/// All bytes of a file. Throws std::runtime_error where it can't be read.
std::string readFile(const std::filesystem::path& path);

/// A file of the project, by its path from the root.
std::string projectFile(std::string_view path);

/// Throws std::runtime_error where the file can't be written.
void writeFile(const std::filesystem::path& path, std::string_view bytes);

}  // namespace awizo::test
