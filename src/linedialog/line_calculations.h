#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "foundation/conversions.h"
#include "platform/forms/drop_down_list.h"

namespace awizo {

/// Keeps tax category "E" and a rate above 0 apart. `which`: 0 after the category changed, 1 after
/// the rate changed.
void CheckVAT(std::int16_t which, DropDownList& category, DropDownList& rate);

/// Net amount of a line, screen number with 2 decimals, from a screen number each; empty where one
/// of them is no number.
std::string MyCalculateAmount(const Conversions& conversions, std::string_view quantity,
                              std::string_view price);

}  // namespace awizo
