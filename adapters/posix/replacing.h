#pragma once

#include <string>
#include <string_view>

namespace awizo::posix {

/// Replaces the file by the bytes, completely or not at all: they are written to a new file in its
/// folder, which then takes its name. The new file keeps the old one's permissions; where there is
/// none, it gets `mode` as far as the user's mask allows.
void replaceFile(const std::string& path, std::string_view bytes, unsigned mode = 0666U);

/// Makes new names in the folder lasting. What they name is on the disk by then, so a failure is no
/// reason to report it as not written.
void flushFolder(const std::string& folder);

}  // namespace awizo::posix
