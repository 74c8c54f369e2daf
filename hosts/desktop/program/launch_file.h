#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

#include "hosts/common/options.h"

namespace awizo::desktop {

/// A launch file that can't be used; what() says why, in Russian, for the user.
class BadLaunchFile : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// A launch file ("*.awizo") tells the program where it is. It is UTF-8 text of at most 64 KiB,
// each line "name=value": "page-url", "cookie" and the five properties by their names, each at most
// once. Blank lines and lines that begin with "#" mean nothing. It comes from a web page, so it is
// refused when something in it could reach beyond the service or the local folder:
// - another line or name, a name twice, control characters but for tabs;
// - a page's address that is not http or https with a host; none, unless "OnLine" is "Off";
// - addresses of exchanges, made of the page's and "PartnerURL", of which one has another scheme,
//   host or port than the page;
// - ".." in "PartnerURL"; ".." or one of "/\:" in "PartnerName"; "PartnerILN" or "DebugLevel" of
//   other characters than digits.

/// Reads the text of a launch file. Throws BadLaunchFile.
Options parseLaunchFile(std::string_view text);

/// Reads the file at the path, as the system knows it. Throws BadLaunchFile.
Options readLaunchFile(const std::string& path);

/// Whether the options say which session to begin: one on a page, or one off line. Else the user
/// is asked.
bool nameSession(const Options& options);

/// What the command line says overrides what the launch file says.
Options merged(const Options& commandLine, const Options& launchFile);

}  // namespace awizo::desktop
