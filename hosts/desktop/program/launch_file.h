#pragma once

#include <string>

#include "desk/launch_file.h"

namespace awizo::desktop {

/// Reads the launch file at the path, as the system knows it. Throws BadLaunchFile.
GivenSession readLaunchFile(const std::string& path);

}  // namespace awizo::desktop
