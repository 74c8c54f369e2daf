#pragma once

#include <string>

#include "platform/run_time_error.h"

namespace awizo::test {

/// The number of the run-time error that the work raises; 0 for none.
template <class Work>
int errorNumberOf(Work&& work) {
  try {
    work();
  } catch (const RunTimeError& error) {
    return error.number();
  }
  return 0;
}

/// The same with its description, "13 Type Mismatch"; "" for none.
template <class Work>
std::string errorOf(Work&& work) {
  try {
    work();
  } catch (const RunTimeError& error) {
    return std::to_string(error.number()) + " " + error.description();
  }
  return "";
}

}  // namespace awizo::test
