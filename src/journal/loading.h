#pragma once

#include <cstddef>
#include <limits>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "journal/record.h"

namespace awizo::journal {

/// A session as a file has kept it, ready to be replayed.
struct RecordedSession {
  std::map<std::string, std::string> header;
  /// Up to the last moment at which the control waited for the user, acts that were refused or
  /// taken back left out. Where an order came after that, up to the end.
  std::vector<Record> records;
  std::size_t deeds = 0;
  std::vector<std::string> summary;  ///< the last one
  /// A request went out whose outcome isn't known.
  bool requestUnanswered = false;
  /// The service handed out an order, and the act that asked for it didn't end: nobody but this
  /// record has it.
  bool orderArrived = false;
};

/// The first record of a file, and what of it is read back.
Record headerRecord(const std::map<std::string, std::string>& header);

/// The session in a file's bytes, cut off after this many deeds; texts that lie beside the file are
/// left there. Raises error 13 for bytes that
/// are no record of a session.
RecordedSession recordedSession(std::string_view bytes,
                                std::size_t mostDeeds = std::numeric_limits<std::size_t>::max());

}  // namespace awizo::journal
