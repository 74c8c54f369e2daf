#pragma once

#include <array>
#include <cstddef>
#include <map>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "platform/date.h"

namespace awizo {

/// What the program was asked at its start.
struct Options {
  std::map<std::string, std::string> properties;  ///< of the property bag
  std::optional<std::string> pageUrl, cookie;     ///< none: the read raises an error
  std::optional<std::string> settingsFile;
  std::optional<std::string> offLinePath;
  std::string locale;  ///< empty: the environment's
  std::optional<Moment> now;
  std::optional<std::string> recordFile;   ///< new: what reaches the control is written into it
  std::optional<std::string> replayFile;   ///< a record that is done first
  std::optional<std::size_t> acts;         ///< no more of it than so many acts
  std::optional<std::string> checkedFile;  ///< the file is to be checked, and nothing else done
};

class BadArguments : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// Names of the property bag's entries.
inline constexpr std::array<std::string_view, 5> propertyNames{
    "OnLine", "DebugLevel", "PartnerName", "PartnerILN", "PartnerURL"};

/// Reads the arguments after the program's name: "--name value" or "--name=value". An argument that
/// is no option goes to `others`; without such a place it is a bad argument like any other. Throws
/// BadArguments.
Options parseOptions(const std::vector<std::string>& arguments,
                     std::vector<std::string>* others = nullptr);

}  // namespace awizo
