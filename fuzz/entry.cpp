// What libFuzzer calls. The environment variable AWIZO_FUZZ_TARGET names the target; one program
// for all of them is linked once.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <iostream>

#include "fuzz/targets.h"

namespace {

awizo::fuzz::Target namedTarget() {
  const char* name = std::getenv("AWIZO_FUZZ_TARGET");
  const awizo::fuzz::Target found = awizo::fuzz::findTarget(name == nullptr ? "" : name);
  if (found == nullptr) {
    std::cerr << "AWIZO_FUZZ_TARGET names no target.\n";
    std::exit(2);
  }
  return found;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t count) {
  static const awizo::fuzz::Target target = namedTarget();
  target({reinterpret_cast<const char*>(bytes), count});
  return 0;
}
