#pragma once

#include <cstdlib>

namespace awizo::test {

/// A number from the environment, so that anybody can let a test go on for hours:
/// AWIZO_RANDOM_SEED=7 AWIZO_RANDOM_ACTIONS=100000000 random_user_tests
inline int fromEnvironment(const char* name, int otherwise) {
  const char* text = std::getenv(name);
  return text == nullptr ? otherwise : std::atoi(text);
}

}  // namespace awizo::test
