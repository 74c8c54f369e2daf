#pragma once

#include <string>
#include <vector>

#include "support/programs/child_process.h"

namespace awizo::test {

struct Ran {
  int status = 0;
  std::string output;  ///< what it wrote, errors included
};

/// Runs the command to its end.
inline Ran run(const std::vector<std::string>& command) {
  std::vector<std::string> joined{"/bin/sh", "-c", "exec \"$@\" 2>&1", "sh"};
  joined.insert(joined.end(), command.begin(), command.end());
  ChildProcess process(joined, {"XDG_RUNTIME_DIR=/tmp"});
  process.closeInput();
  Ran ran;
  while (const auto line = process.readLine()) ran.output += *line + "\n";
  ran.status = process.waitForEnd().value_or(-1);
  return ran;
}

}  // namespace awizo::test
