#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace awizo {

/// What a program says of itself when it is asked nothing but that: the usage for "--help", its
/// name and version for "--version". Empty for all other arguments.
std::string aboutProgram(std::string_view name, std::string_view usage,
                         const std::vector<std::string>& arguments);

}  // namespace awizo
