#pragma once

#include <cstddef>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "platform/date.h"
#include "session/record/properties.h"

namespace awizo {

/// What the program was asked at its start.
struct Options : GivenSession {
  std::optional<std::string> settingsFile;
  std::optional<std::string> offLinePath;
  std::string locale;  ///< empty: the environment's
  std::optional<Moment> now;
  std::optional<std::string> recordFile;   ///< new: what reaches the control is written into it
  std::optional<std::string> replayFile;   ///< a record that is done first
  std::optional<std::size_t> acts;         ///< only this many of its acts
  std::optional<std::string> checkedFile;  ///< the file is to be checked, and nothing else done
};

class BadArguments : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// Reads the arguments after the program's name: "--name value" or "--name=value". An argument that
/// is no option goes to `others`; without such a place it is a bad argument like any other. Throws
/// BadArguments.
Options parseOptions(const std::vector<std::string>& arguments,
                     std::vector<std::string>* others = nullptr);

}  // namespace awizo
