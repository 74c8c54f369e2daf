#pragma once

#include "hosts/common/options.h"
#include "hosts/headless/conversation.h"
#include "hosts/headless/machine.h"

namespace awizo::headless {

/// Shows the start page to the client's user, who chooses a partner for work off line. Returns the
/// options with that choice, and tells the client that a session begins:
///   {"event":"begins","opens":true}   where a saved document is to be opened at once
/// {"do":"refresh"} reads the folder again. Throws InputEnded where the input ends first.
Options chosenAtStart(const Options& options, Machine& machine, Conversation& conversation);

}  // namespace awizo::headless
