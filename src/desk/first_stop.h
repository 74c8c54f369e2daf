#pragma once

#include "session/awizo_wysylki.h"

namespace awizo {

/// Where the user begins in a dialog that would have its focus where it was the last time: at what
/// it has chosen by itself, so that nothing is accepted unseen. Null where the dialog says where.
Control* firstStop(AwizoWysylki& control, const Form& dialog);

}  // namespace awizo
