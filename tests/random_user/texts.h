#pragma once

#include <string>
#include <string_view>

#include "random_user/dice.h"

namespace awizo::test {

/// What a user may type into a field of this name: mostly what belongs there, now and then
/// nonsense.
std::string typedText(Dice& dice, std::string_view field);

/// An 18-digit container code; its last digit is nearly always right.
std::string containerCode(Dice& dice);

}  // namespace awizo::test
