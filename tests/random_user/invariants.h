#pragma once

#include <string>
#include <vector>

#include "support/control/test_control.h"

namespace awizo::test {

/// What has happened in a session after which a rule of the tables needn't hold any more.
struct Trust {
  bool tables = true;  ///< no file was read, no error was reported half-way
  bool tree = true;    ///< no two packages bore one description, so none has become its own parent
  bool references = true;  ///< no package's description held "$" or "@"
};

/// The rules of the tables that are broken, in words; empty where all is well.
std::vector<std::string> brokenRules(TestControl& desk, const Trust& trust);

/// Looks for what the trust must end at: descriptions of packages that are equal or hold a
/// separator of the references.
void lowerTrust(const TestControl& desk, Trust& trust);

}  // namespace awizo::test
