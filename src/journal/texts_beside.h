#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "journal/loading.h"
#include "journal/record.h"
#include "platform/record_folder.h"
#include "platform/run_time_error.h"

namespace awizo::journal {

// Long replies and files, such as a catalogue, lie beside the record, where sessions share them.

/// By what it holds, so that the same text has one name.
std::string nameBeside(std::string_view text);

/// Keeps the long text of an outcome beside, and gives the record that names it. None where the
/// record has to hold the text itself: it isn't long, or can't be kept beside.
std::optional<Record> namedBeside(const Record& outcome, TextsBeside& texts);

/// Puts the texts that lie beside back into the records. One that `read` doesn't give as it was
/// stays where it is, so that a replay ends there; the first such error.
std::optional<RunTimeError> fetchBeside(
    std::vector<Record>& records, const std::function<std::string(const std::string& name)>& read);

/// A session of this folder, whole: without one of its texts the error of that is raised.
RecordedSession keptSession(RecordFolder& folder, std::string_view record);

}  // namespace awizo::journal
