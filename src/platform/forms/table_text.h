#pragma once

#include <string>

#include "platform/forms/table.h"

namespace awizo {

/// The marked cells as spreadsheets take them from the clipboard: columns parted by tabs, rows
/// ended by line ends, a cell in quotes where it holds one of these or a quote. Columns of no width
/// are left out; a mark that lies in such columns alone stands for whole rows.
std::string markedText(const Table& table);

/// Whether the row has a text. One without is no row of the document: the table only can't have
/// fewer.
bool hasText(const Table& table, int row);

}  // namespace awizo
