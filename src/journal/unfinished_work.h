#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/record_folder.h"
#include "session/awizo_wysylki.h"

namespace awizo::journal {

/// What a record says of its work, for the question whether to go on with it.
struct WorkSummary {
  std::string number;  ///< of the despatch advice, as typed
  std::string orderNumber;
  std::string time;  ///< of the last act, "23:14"
  int lines = 0;
  int packedLines = 0;  ///< lines of which something lies in packages
  /// There are lines that the service hasn't taken under this number, or the user would be asked
  /// before the document goes.
  bool isUnsent = false;
  bool operator==(const WorkSummary&) const = default;
};

/// Of a control as it is now. Quick enough to be asked after every act: the whole document is
/// looked at only where the rest doesn't tell. `wouldBeLost`: whether the user would be asked
/// before the document goes.
WorkSummary summaryOf(const AwizoWysylki& control, const Clock& clock,
                      const std::function<bool()>& wouldBeLost);

// A summary as a record has it; none for texts of another form.
std::vector<std::string> textsOf(const WorkSummary& summary);
std::optional<WorkSummary> summaryIn(const std::vector<std::string>& texts);

/// A record of work that was neither sent nor given up.
struct UnfinishedWork {
  std::string record;  ///< its name in the folder
  WorkSummary summary;
  /// A request went out last whose answer never came: the document may have arrived.
  bool mayHaveArrived = false;
  /// An order had come and wasn't in the tables yet: the work goes on with putting it there.
  bool orderArrived = false;
  bool tried = false;  ///< somebody has begun to go on with it before
};

/// The work left behind last; what somebody has tried to go on with comes after all other, for it
/// may fail again. Records in use are somebody else's; those without unsent work are
/// removed on the way, and one that can't be read is left alone. A folder that can't be used has
/// none.
std::optional<UnfinishedWork> unfinishedWork(RecordFolder& folder);

/// Removes the oldest records until at most `mostBytes` are kept, what records share counted once;
/// never one in use.
void keepWithin(RecordFolder& folder, std::uint64_t mostBytes);

}  // namespace awizo::journal
