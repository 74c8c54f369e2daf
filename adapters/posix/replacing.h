#pragma once

#include <string>
#include <string_view>

namespace awizo::posix {

/// Replaces the file by the bytes, completely or not at all: they are written to a new file in its
/// folder, which then takes its name. The new file keeps the old one's permissions.
void replaceFile(const std::string& path, std::string_view bytes);

}  // namespace awizo::posix
