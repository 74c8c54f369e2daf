#pragma once

#include <string>

#include "hosts/protocol/values/json.h"
#include "platform/forms/table.h"

namespace awizo::protocol {

/// Sizes, current cell and marked range, texts and looks of all cells. Looks are given only of
/// cells that differ from the plain white, left-aligned one.
Json tableState(const Table& table);

/// "#rrggbb".
std::string colourText(Colour colour);
/// "left", "centre" or "right".
const char* alignmentName(Alignment alignment);

}  // namespace awizo::protocol
