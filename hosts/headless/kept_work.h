#pragma once

#include <string>

#include "hosts/common/options.h"
#include "hosts/headless/conversation.h"
#include "hosts/headless/machine.h"
#include "journal/loading.h"
#include "journal/taped_platform.h"

namespace awizo::headless {

/// What a session begins with.
struct Beginning {
  Options options;
  journal::RecordedSession replayed = {};  ///< done before the user's turn comes
  journal::AskedToday today = {};
  /// The kept record of what is replayed; empty where that isn't from the machine's records.
  std::string record = {};
  std::string time = {};  ///< up to which the work is in that record, "23:14"
};

/// As the options say. Without a record of their own the user is asked whether to go on with work
/// that the machine's records hold. Throws BadArguments for a record that can't be replayed.
Beginning beginningOf(const Options& options, Machine& machine, Conversation& conversation);

}  // namespace awizo::headless
