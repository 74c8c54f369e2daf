#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/locale.h"

namespace awizo {

// The line dialog's fixed lists: their rows, and the codes that lines have for the rows. The index
// of a code that no row has is -1.

/// Units of measure by their Russian names.
std::vector<std::string> unitRows();
/// "PCE"; the empty text for an index without a row.
std::string unitCode(std::int16_t index);
/// Case is ignored.
std::int16_t unitIndex(const Locale& locale, std::string_view code);

/// Categories of value added tax.
std::vector<std::string> taxCategoryRows();
/// "S"; "E" for any index but 0, those without a row included, unlike units and rates.
std::string taxCategoryCode(std::int16_t index);
/// Case is ignored.
std::int16_t taxCategoryIndex(const Locale& locale, std::string_view code);

/// Rates of value added tax in percent.
std::vector<std::string> taxRateRows();
/// "18"; the empty text for an index without a row.
std::string taxRateCode(std::int16_t index);
/// The text must be the same: "18,00" has none.
std::int16_t taxRateIndex(std::string_view rate);

}  // namespace awizo
