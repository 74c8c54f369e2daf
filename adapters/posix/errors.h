#pragma once

#include <string>

#include "platform/run_time_error.h"

namespace awizo::posix {

/// The run-time error for a failed system call on a file, by its `errno` value. For a file that
/// isn't there the path shows whether the file alone or its folder is missing.
RunTimeError fileError(int number, const std::string& path);

/// The same for a folder.
RunTimeError folderError(int number);

}  // namespace awizo::posix
