#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/locale.h"

namespace awizo {

/// Rows of the package dialog's list of types.
std::vector<std::string> packageTypeRows();
/// Code of a package type's row: "09", "201", "PK"; the empty text for any other index.
std::string symbolPackageType(std::int16_t index);
/// Row of a package type's code, case ignored; -1 for any other text.
std::int16_t indexPackageType(const Locale& locale, std::string_view code);

}  // namespace awizo
