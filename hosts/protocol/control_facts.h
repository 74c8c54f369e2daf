#pragma once

#include "hosts/protocol/values/json.h"
#include "platform/forms/control.h"

namespace awizo::protocol {

// A control for a client that mirrors it piece by piece.

/// All of the control but its rows: always the same members for a kind. Those of controlState are
/// among them, but "place" is one member (null for none), and rows are only counted: "count".
Json controlFacts(const Control& control);

/// Rows of a list or table; 0 for other kinds.
int rowCount(const Control& control);
/// Heading rows of a table; 0 for other kinds.
int fixedRowCount(const Control& control);
/// One of these rows: "row", and "text" of a list's; "height" and "cells" of a table's, and its
/// "looks", those of cells that differ from the plain white, left-aligned one.
Json rowFacts(const Control& control, int row);

}  // namespace awizo::protocol
