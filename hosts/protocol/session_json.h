#pragma once

#include "hosts/protocol/values/json.h"
#include "session/record/session_state.h"

namespace awizo::protocol {

/// The session's record by its field names. A document is its text, "" for none; of the log's
/// stream and files only whether there are any; a cursor is "wait" or "default".
Json sessionJson(const SessionState& session);

/// "wait" or "default".
const char* cursorName(Cursor cursor);

}  // namespace awizo::protocol
