#pragma once

#include <functional>

#include "hosts/protocol/dispatcher.h"
#include "journal/history.h"
#include "session/awizo_wysylki.h"

namespace awizo::headless {

// What a client says of the steps that can be taken back:
//   {"get":"steps"}     {"takeBack":"&Отменить: правка строки 7","doAgain":null}, null for none
//   {"do":"takeBack"}   {"do":"doAgain"}

/// The commands with the names of their steps; null for what there is none of.
protocol::Json stepCommands(AwizoWysylki& control, const journal::History& history);

/// Lets lines say so. Control and history outlive the dispatcher. `tell`: takes words on what was
/// done.
void addStepLines(protocol::Dispatcher& dispatcher, AwizoWysylki& control,
                  journal::History& history, std::function<void(const std::string&)> tell);

}  // namespace awizo::headless
