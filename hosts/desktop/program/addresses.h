#pragma once

#include <string_view>

#include "desk/addresses.h"

namespace awizo::desktop {

/// As Qt reads addresses.
AddressParts splitAddress(std::string_view url);

}  // namespace awizo::desktop
