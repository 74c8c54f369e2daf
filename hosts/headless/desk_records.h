#pragma once

#include "hosts/protocol/dispatcher.h"
#include "session/awizo_wysylki.h"
#include "session/record/deed.h"

namespace awizo::headless {

/// What a client may show beside the forms: {"get":"commands"} are the menus, each command with the
/// button that it presses and its keys.
void addDeskRecords(protocol::Dispatcher& dispatcher, AwizoWysylki& control);

/// For a client that has disks of its own: {"do":"choosePath","path":"c:\\VIRD\\a.xml"} chooses
/// that file in the open dialog, as a user does.
void addFileLines(protocol::Dispatcher& dispatcher, AwizoWysylki& control);

/// {"event":"saved","path":"c:\\VIRD\\a.xml"}
protocol::Json savedEvent(const Deed& deed);

}  // namespace awizo::headless
