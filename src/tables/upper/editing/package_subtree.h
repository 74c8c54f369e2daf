#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "session/record/editor.h"

namespace awizo {

/// Adds the serials of the package in the row and of its descendants, depth first in table order.
/// Leaves the last package's row current. A package that lies in itself raises error 28.
void GetPackagesRec(Editor& editor, std::int16_t row, std::vector<std::string>& delSerials);

/// Removes the first row of each serial from grdOpakowania, and corrects IloscPozycjiOpak.
void removePackageRows(Editor& editor, const std::vector<std::string>& delSerials);

}  // namespace awizo
