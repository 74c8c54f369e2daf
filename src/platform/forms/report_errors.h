#pragma once

#include <concepts>
#include <optional>
#include <string_view>
#include <utility>

#include "platform/forms/screen.h"
#include "platform/run_time_error.h"

namespace awizo {

/// Runs the body of a procedure that has an error handler of its own: a run-time error ends the
/// body and shows a critical box with the error's description. The title is made when the error has
/// happened, so that it can say how far the body came. Returns whether the body ran to its end.
template <std::invocable Title, class Body>
bool reportErrors(Screen& screen, Title&& title, Body&& body) {
  const std::optional<RunTimeError> error = caughtError(std::forward<Body>(body));
  if (error) screen.showError(*error, title());
  return !error;
}

/// The same under a title that is always the same.
template <class Body>
bool reportErrors(Screen& screen, std::string_view title, Body&& body) {
  return reportErrors(
      screen, [title] { return title; }, std::forward<Body>(body));
}

}  // namespace awizo
