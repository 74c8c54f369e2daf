#pragma once

#include "session/record/awizo_form.h"
#include "session/record/work.h"

namespace awizo {

/// What a procedure works on that reads or writes the main form with its tables.
struct Editor : Work {
  Editor(const Platform& surroundings, SessionState& state, AwizoForm& mainForm)
      : Work(surroundings, state), form(mainForm) {}

  AwizoForm& form;
};

}  // namespace awizo
