#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include "hosts/common/options.h"
#include "hosts/headless/machine.h"
#include "hosts/protocol/values/json.h"
#include "journal/loading.h"
#include "platform/growing_file.h"

namespace awizo::headless {

// What the program's options say of a record, and the host's deeds as records have them.

/// The session that is to be replayed; an empty one where none is asked for. Throws BadArguments
/// where the file can't be read or holds no session.
journal::RecordedSession sessionToReplay(const Options& options, Machine& machine);

/// The new file of the record, which begins with what the options say; null where none is asked
/// for. Throws BadArguments where it is there already or can't be made.
std::unique_ptr<GrowingFile> newRecord(const Options& options, const std::string& localeName,
                                       Machine& machine);

/// A line of the host's as a record's texts, and back. Empty for a line that isn't the host's.
std::vector<std::string> hostActOf(const protocol::Json& line);
protocol::Json lineOf(const std::vector<std::string>& hostAct);

}  // namespace awizo::headless
