#include "linedialog/line_calculations.h"

namespace awizo {

void CheckVAT(std::int16_t which, DropDownList& category, DropDownList& rate) {
  if (which == 0 && category.index() == 1) rate.setIndex(0);
  if (which == 1 && rate.index() >= 1) category.setIndex(0);
}

std::string MyCalculateAmount(const Conversions& conversions, std::string_view quantity,
                              std::string_view price) {
  return conversions.NormalizeDecimal(
      conversions.MultiplyToAmount(Conversions::CommaToDot(quantity),
                                   Conversions::CommaToDot(price)),
      2);
}

}  // namespace awizo
