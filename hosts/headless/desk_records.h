#pragma once

#include <functional>
#include <string_view>
#include <vector>

#include "desk/commands.h"
#include "hosts/protocol/dispatcher.h"
#include "session/awizo_wysylki.h"
#include "session/record/deed.h"

namespace awizo::headless {

/// The menus without the commands that nobody does here.
std::vector<CommandMenu> doneMenus(std::vector<CommandMenu> menus,
                                   const std::function<bool(const Command& command)>& isDone);

/// The menus: each command with the button that it presses or its task, the number of its group in
/// the menu, its keys, and the table on whose current row it acts; of a switch whether it is on.
protocol::Json menusJson(const std::vector<CommandMenu>& menus,
                         const std::function<bool(HostTask)>& isOn);
/// A command of a dialog, its controls by the names that lines use.
protocol::Json commandJson(const Command& command, const protocol::FormDirectory& forms);

/// A task as lines call it; empty for one that isn't done here.
std::string_view taskName(HostTask task);
/// Throws BadLine for a name that no task has.
HostTask taskNamed(std::string_view name);

/// For a client that has disks of its own: {"do":"choosePath","path":"c:\\VIRD\\a.xml"} chooses
/// that file in the open dialog, as a user does.
void addFileLines(protocol::Dispatcher& dispatcher, AwizoWysylki& control);

/// {"event":"saved","path":"c:\\VIRD\\a.xml"}
protocol::Json savedEvent(const Deed& deed);

}  // namespace awizo::headless
