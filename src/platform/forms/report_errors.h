#pragma once

#include <new>
#include <string_view>
#include <utility>

#include "platform/forms/screen.h"
#include "platform/run_time_error.h"

namespace awizo {

/// Runs the body of a procedure that has an error handler of its own: a run-time error ends the
/// body and shows a critical box with the error's description under `title`. Answers whether the
/// body ran to its end.
template <class Body>
bool reportErrors(Screen& screen, std::string_view title, Body&& body) {
  try {
    std::forward<Body>(body)();
    return true;
  } catch (const RunTimeError& error) {
    screen.showCritical(error.description(), title);
  } catch (const std::bad_alloc&) {
    screen.showCritical(errors::outOfMemory().description(), title);
  }
  return false;
}

}  // namespace awizo
