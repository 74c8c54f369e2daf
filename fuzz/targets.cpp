#include "fuzz/targets.h"

#include <algorithm>
#include <cstdlib>
#include <iostream>

namespace awizo::fuzz {

Target findTarget(std::string_view name) {
  const auto* const found = std::ranges::find(targets, name, &NamedTarget::name);
  return found == targets.end() ? nullptr : found->run;
}

void require(bool holds, std::string_view promise) {
  if (holds) return;
  std::cerr << "Broken: " << promise << std::endl;
  std::abort();
}

}  // namespace awizo::fuzz
