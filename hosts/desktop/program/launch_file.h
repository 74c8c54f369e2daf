#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

#include "hosts/common/options.h"

namespace awizo::desktop {

/// A launch file that can't be used; what() tells the user why, in Russian.
class BadLaunchFile : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// A launch file ("*.awizo") tells the program where it is. It is UTF-8 text, each line
// "name=value": "page-url", "cookie" and the five properties by their names, each at most once.
// Blank lines and lines that begin with "#" mean nothing. It comes from a web page, so everything
// in it that could reach beyond the service or the local folder is refused.

/// Reads the text of a launch file. Throws BadLaunchFile.
Options parseLaunchFile(std::string_view text);

/// Reads the file at the path, as the system knows it. Throws BadLaunchFile.
Options readLaunchFile(const std::string& path);

/// What the command line says goes before what the launch file says.
Options merged(const Options& commandLine, const Options& launchFile);

}  // namespace awizo::desktop
