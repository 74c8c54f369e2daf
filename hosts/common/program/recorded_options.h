#pragma once

#include <map>
#include <string>

#include "hosts/common/options.h"
#include "journal/taped_platform.h"

namespace awizo {

// A program's options in the header of a record, and back.

using RecordHeader = std::map<std::string, std::string>;

/// What a record has to know of the session's options. The page isn't among them.
RecordHeader headerOf(const Options& options, const std::string& localeName);

/// The options with what the record's own said where these name nothing.
Options withRecorded(Options options, const RecordHeader& header);

/// The options of a session that goes on: its own partner and locale; the page is today's, if these
/// name one.
Options optionsToGoOn(Options today, const RecordHeader& header);

/// What these options name, so that a replay doesn't take it from the record.
journal::AskedToday askedToday(const Options& options);

}  // namespace awizo
