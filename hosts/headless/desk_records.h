#pragma once

#include "hosts/protocol/dispatcher.h"
#include "session/awizo_wysylki.h"

namespace awizo::headless {

/// What a client may show beside the forms: {"get":"commands"} are the menus, each command with the
/// button that it presses and its keys.
void addDeskRecords(protocol::Dispatcher& dispatcher, AwizoWysylki& control);

}  // namespace awizo::headless
