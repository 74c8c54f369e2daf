#pragma once

#include "journal/record.h"
#include "session/awizo_wysylki.h"

namespace awizo::journal {

/// Does an act of the user once more. Throws what the act throws, Refused included; error 13 where
/// the record names no act or no control of these forms.
void perform(const std::vector<Form*>& forms, const Record& act);

}  // namespace awizo::journal
