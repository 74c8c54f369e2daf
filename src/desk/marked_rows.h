#pragma once

#include <vector>

#include "platform/forms/table.h"

namespace awizo {

/// The rows of a table that the user has marked, the current one at least, of the first `count`.
std::vector<int> markedRows(const Table& table, int count);

}  // namespace awizo
