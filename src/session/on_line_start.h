#pragma once

#include <string_view>

#include "session/record/editor.h"

namespace awizo {

/// Whether a page hosts the control: whether its cookie can be read.
bool HasHostDocument(HostPage& page);

/// Fetches partner info, both catalogues and a waiting order from the service, and fills the form
/// from the order. Returns the refusal to show, or the empty text. A page whose address or cookie
/// can't be read raises that error.
std::string_view startOnLine(Editor& editor);

}  // namespace awizo
