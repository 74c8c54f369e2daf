#pragma once

#include <string>

#include "journal/history.h"
#include "session/record/awizo_form.h"

namespace awizo {

/// What a step was, to follow a colon: "удаление строки 17".
std::string stepWords(AwizoForm& form, const journal::StepName& name);

// The commands that take a step back and do it again, in a menu; what there is none of is named by
// the command alone.
std::string takeBackWords(AwizoForm& form, const journal::History& history);
std::string doAgainWords(AwizoForm& form, const journal::History& history);

}  // namespace awizo
