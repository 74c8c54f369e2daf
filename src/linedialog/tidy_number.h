#pragma once

#include "foundation/conversions.h"
#include "platform/forms/text_field.h"

namespace awizo {

/// What leaving a number field does: the text loses its outer spaces and, where it is a number,
/// becomes a screen number with that many decimals. Never refuses.
void tidyNumber(const Conversions& conversions, TextField& field, int decimals);

}  // namespace awizo
