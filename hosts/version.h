#pragma once

#include "platform/program_version.h"

namespace awizo {

/// The program's version, as the build knows it.
inline constexpr ProgramVersion programVersion{AWIZO_VERSION_MAJOR, AWIZO_VERSION_MINOR,
                                               AWIZO_VERSION_PATCH};

}  // namespace awizo
