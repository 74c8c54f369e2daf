#pragma once

#include <string>
#include <vector>

#include "platform/forms/kept.h"
#include "session/awizo_wysylki.h"

namespace awizo::journal {

/// All that a control held at a moment at which the user's turn was: every model of every form, the
/// members of forms and dialogs, the session's record. Snapshots of one control share what is
/// equal, rows of tables too.
struct Snapshot {
  std::vector<KeptPart> parts;
  std::vector<std::string> header;  ///< what the header's fields show
  Cursor cursor = Cursor::normal;
};

/// `earlier`: of the same control; empty where there is none.
Snapshot snapshotOf(AwizoWysylki& control, const Snapshot& earlier);

/// Puts back what the control held. No event is raised; faces learn of it when all is in place.
void putBack(AwizoWysylki& control, const Snapshot& snapshot);

/// Whether the document is the same as then: the header's fields, and the texts of lines and
/// packages.
bool holdsDocumentOf(AwizoWysylki& control, const Snapshot& then);

}  // namespace awizo::journal
