#pragma once

#include <string>

#include "platform/program_version.h"

namespace awizo {

/// The program's version, as the build knows it.
inline constexpr ProgramVersion programVersion{AWIZO_VERSION_MAJOR, AWIZO_VERSION_MINOR,
                                               AWIZO_VERSION_PATCH};

/// "1.2.3".
inline std::string versionText() {
  return std::to_string(programVersion.major) + "." + std::to_string(programVersion.minor) + "." +
         std::to_string(programVersion.revision);
}

}  // namespace awizo
