#pragma once

#include <string>
#include <string_view>

namespace awizo::posix {

/// Puts the bytes in the file's place, wholly or not at all: they are written to a new file
/// beside it, which then takes its name. The new file keeps the old one's permissions.
void replaceFile(const std::string& path, std::string_view bytes);

}  // namespace awizo::posix
