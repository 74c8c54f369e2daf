#pragma once

#include "session/record/awizo_form.h"
#include "session/record/work.h"

namespace awizo {

/// What a procedure works on that reads or writes the main form with its tables.
struct Editor : Work {
  Editor(const Platform& surroundings, Screen& screen, SessionState& state, AwizoForm& mainForm)
      : Work(surroundings, screen, state), form(mainForm) {}

  AwizoForm& form;
};

}  // namespace awizo
