#pragma once

#include <string>
#include <vector>

namespace awizo::benchmarks {

// What this program does when a benchmark starts it as a program of its own.

/// Parses files with bare libxml2.
int parseFiles(const std::vector<std::string>& files);
/// Shows a bare window with an empty table until it is painted.
int showBareWindow();
/// Shows the desktop program's window until its start has ended and it is painted. The arguments
/// are the program's.
int showMainWindow(const std::vector<std::string>& arguments);

}  // namespace awizo::benchmarks
