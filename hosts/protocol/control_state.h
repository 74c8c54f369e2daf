#pragma once

#include "hosts/protocol/values/json.h"
#include "platform/forms/control.h"

namespace awizo::protocol {

/// What of a control can be seen, as an object: kind, visible, enabled, its place where the logic
/// has set one, and what its kind has.
Json controlState(const Control& control);

const char* kindName(ControlKind kind);
/// What its kind has.
Json ownState(const Control& control);

}  // namespace awizo::protocol
