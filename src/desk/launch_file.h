#pragma once

#include <cstddef>
#include <stdexcept>
#include <string_view>

#include "desk/addresses.h"
#include "session/record/properties.h"

namespace awizo {

/// A launch file that can't be used; what() says why, in Russian, for the user.
class BadLaunchFile : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// A launch file ("*.awizo") tells a program where it is. It is UTF-8 text of at most 64 KiB,
// each line "name=value": "page-url", "cookie" and the five properties by their names, each at most
// once. Blank lines and lines that begin with "#" mean nothing. It comes from a web page, so it is
// refused when something in it could reach beyond the service or the local folder:
// - another line or name, a name twice, control characters but for tabs;
// - a page's address that is not http or https with a host; none, unless "OnLine" is "Off";
// - addresses of exchanges, made of the page's and "PartnerURL", of which one has another scheme,
//   host or port than the page;
// - ".." in "PartnerURL"; ".." or one of "/\:" in "PartnerName"; "PartnerILN" or "DebugLevel" of
//   other characters than digits.

/// A host needs to read no more of a file than this and one byte.
inline constexpr std::size_t largestLaunchFile = 65536;

/// Reads the bytes of a launch file. Throws BadLaunchFile.
GivenSession parseLaunchFile(std::string_view bytes, const SplitAddress& split);

/// A file that the host can't read.
BadLaunchFile unreadableLaunchFile();

/// Whether the session to begin is named: one on a page, or one off line. Else the user is asked.
bool namesSession(const GivenSession& given);

/// What was said when the program was called overrides what the launch file says.
GivenSession merged(const GivenSession& called, const GivenSession& launchFile);

}  // namespace awizo
