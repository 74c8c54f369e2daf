#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace awizo::posix {

/// The machine's path for a classic one: "c:\home\anna" is "/home/anna", the drive c: being the
/// root. Paths written with "/" are taken as well. Error 52 for a path that can't be one, 68 for
/// another drive.
std::string systemPath(std::string_view path);

/// The reverse of it, for a path from the root.
std::string classicPath(std::string_view path);

/// The drives there are: "c:".
std::vector<std::string> driveNames();

}  // namespace awizo::posix
