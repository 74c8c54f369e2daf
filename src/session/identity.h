#pragma once

#include <string_view>

#include "session/record/editor.h"

namespace awizo {

/// Why the editor can't work, in words for the user; empty where it can.
using Refusal = std::string_view;

/// Reads who the user's firm and the partner are from the two files of the local folder.
Refusal readIdentity(Editor& editor);

/// Takes the buyer's tax number, name and account from the partner's `info` element, wherever that
/// came from.
void readBuyer(SessionState& session, const XmlNode& info);

}  // namespace awizo
