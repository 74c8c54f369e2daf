#include "hosts/common/program/about.h"

#include "hosts/version.h"

namespace awizo {

std::string aboutProgram(std::string_view name, std::string_view usage,
                         const std::vector<std::string>& arguments) {
  if (arguments == std::vector<std::string>{"--help"}) return std::string(usage);
  if (arguments != std::vector<std::string>{"--version"}) return "";
  return std::string(name) + " " + versionText() + "\n";
}

}  // namespace awizo
