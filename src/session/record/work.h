#pragma once

#include "foundation/conversions.h"
#include "platform/platform.h"
#include "session/record/session_state.h"

namespace awizo {

/// What a procedure works on that leaves the main form alone: the surroundings, the session's
/// record, and the conversions of the session's locale. The parts outlive it.
struct Work {
  Work(const Platform& surroundings, SessionState& state)
      : platform(surroundings),
        session(state),
        conversions(surroundings.locale, state.DecimalSeparator) {}

  Screen& screen() const { return platform.screen; }

  const Platform& platform;
  SessionState& session;
  Conversions conversions;
};

}  // namespace awizo
