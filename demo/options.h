#pragma once

#include <filesystem>
#include <stdexcept>
#include <string>
#include <vector>

#include "demo/faults.h"

namespace awizo::demo {

struct Options {
  int port = 0;  ///< 0: any that is free
  std::filesystem::path dataFolder;
  std::filesystem::path pageFolder;
  std::filesystem::path postedFolder = "posted";
  std::vector<FaultSetting> faults;
  std::string about;  ///< "--help" or "--version": nothing else is to be done
};

class BadOption : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// Reads the program's arguments (without its own name). Raises BadOption.
Options parseOptions(const std::vector<std::string>& arguments);

/// The options, one a line, for --help.
std::string optionsHelp();

}  // namespace awizo::demo
