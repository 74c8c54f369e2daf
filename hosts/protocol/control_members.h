#pragma once

#include "hosts/protocol/values/json.h"
#include "session/awizo_wysylki.h"

namespace awizo::protocol {

/// Properties and members of the control by their names, and whether it is enabled.
Json controlMembers(const AwizoWysylki& control);

// Public members of the dialogs by their names. Reading them loads no dialog.
Json membersOf(const DlgDodaj& dialog);
Json membersOf(const DlgdodajPule& dialog);
Json membersOf(const DlgSzczegoly& dialog);

}  // namespace awizo::protocol
