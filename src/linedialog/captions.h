#pragma once

#include <string_view>

/// What the button that accepts a dialog says besides "&Добавить".
namespace awizo::captions {

/// Where something is changed that is there already.
inline constexpr std::string_view confirm = "&Подтвердить";

}  // namespace awizo::captions
