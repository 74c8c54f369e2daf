#pragma once

#include "foundation/conversions.h"
#include "platform/platform.h"
#include "session/record/awizo_form.h"
#include "session/record/session_state.h"

namespace awizo {

/// What the editor's procedures work on: its surroundings, the session's record, the main form
/// with the tables, and the conversions of the session's locale. The parts outlive it.
struct Editor {
  Editor(const Platform& surroundings, SessionState& state, AwizoForm& mainForm)
      : platform(surroundings),
        session(state),
        form(mainForm),
        conversions(surroundings.locale, state.DecimalSeparator) {}

  Screen& screen() const { return platform.screen; }

  const Platform& platform;
  SessionState& session;
  AwizoForm& form;
  Conversions conversions;
};

}  // namespace awizo
