#include "linedialog/tidy_number.h"

#include "platform/text.h"

namespace awizo {

void tidyNumber(const Conversions& conversions, TextField& field, int decimals) {
  field.setText(conversions.NormalizeDecimal(trimmed(field.text()), decimals));
}

}  // namespace awizo
