#pragma once

#include <map>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "platform/date.h"

namespace awizo::headless {

/// What the program was asked at its start.
struct Options {
  std::map<std::string, std::string> properties;  ///< of the property bag
  std::optional<std::string> pageUrl, cookie;     ///< none: the read raises an error
  std::optional<std::string> settingsFile;
  std::optional<std::string> offLinePath;
  std::string locale;  ///< empty: the environment's
  std::optional<Moment> now;
};

class BadArguments : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// Reads the arguments behind the program's name: "--name value" or "--name=value". Throws
/// BadArguments.
Options parseOptions(const std::vector<std::string>& arguments);

/// How the program is called, for people.
extern const std::string_view usage;

}  // namespace awizo::headless
