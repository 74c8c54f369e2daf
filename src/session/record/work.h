#pragma once

#include "foundation/conversions.h"
#include "platform/forms/platform.h"
#include "platform/forms/screen.h"
#include "session/record/session_state.h"

namespace awizo {

/// What a procedure works on that leaves the main form alone: the surroundings, the screen, the
/// session's record, and the conversions of the session's locale. The parts outlive it.
struct Work {
  Work(const Platform& surroundings, Screen& screen, SessionState& state)
      : platform(surroundings),
        session(state),
        conversions(surroundings.locale, state.DecimalSeparator),
        screen_(screen) {}

  Screen& screen() const { return screen_; }

  const Platform& platform;
  SessionState& session;
  Conversions conversions;

 private:
  Screen& screen_;
};

}  // namespace awizo
