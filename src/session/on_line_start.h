#pragma once

#include "session/identity.h"
#include "session/record/editor.h"

namespace awizo {

/// Whether a page hosts the control: whether its cookie can be read.
bool HasHostDocument(HostPage& page);

/// Fetches partner info, both catalogues and a waiting order from the service, and fills the form
/// from the order. A page whose address or cookie can't be read raises that error.
Refusal startOnLine(Editor& editor);

}  // namespace awizo
