#pragma once

#include <string_view>

#include "session/record/editor.h"

namespace awizo {

/// Reads who the user's firm and the partner are from the two files of the local folder. Returns
/// the refusal to show, or the empty text.
std::string_view readIdentity(Editor& editor);

/// Takes the buyer's tax number, name and account from the partner's `info` element, wherever that
/// came from.
void readBuyer(SessionState& session, const XmlNode& info);

}  // namespace awizo
