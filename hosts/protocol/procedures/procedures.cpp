#include "hosts/protocol/procedures/procedures.h"

#include <algorithm>

namespace awizo::protocol {

Json Procedures::call(std::string_view name, const Json& arguments) const {
  const auto found = procedures_.find(name);
  if (found == procedures_.end()) {
    throw BadLine("There is no procedure \"" + std::string(name) + "\".");
  }
  if (!arguments.is_array()) throw BadLine("\"args\" must be an array.");
  return found->second(arguments);
}

void Procedures::requireCount(std::size_t given, std::initializer_list<bool> mayBeLeftOut) {
  const auto least = static_cast<std::size_t>(std::ranges::count(mayBeLeftOut, false));
  if (given < least || given > mayBeLeftOut.size()) {
    throw BadLine("The procedure takes " + std::to_string(mayBeLeftOut.size()) + " arguments.");
  }
}

}  // namespace awizo::protocol
