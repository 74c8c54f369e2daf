#pragma once

#include <string>
#include <vector>

#include "hosts/headless/lines.h"
#include "hosts/headless/machine.h"

namespace awizo::headless {

/// Does what the arguments after the program's name ask for, and returns the exit status. What is
/// wrong with them is written to standard error.
int runCommandLine(const std::vector<std::string>& arguments, Machine& machine, Lines& lines);

}  // namespace awizo::headless
