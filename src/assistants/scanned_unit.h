#pragma once

#include <string>
#include <string_view>

#include "assistants/assistance.h"

namespace awizo {

/// Puts one unit of the line with this scanned EAN into the current package, as the user may, and
/// goes to the line; it is one step of the user's. Of several lines with this EAN it is the first
/// that has a unit left, from the current one on. What lies in the package already of it becomes
/// one more, where the quantity dialog lets so much through. Returns what the user should know: how
/// much is packed now, or why it isn't.
std::string packScannedUnit(const Assistance& with, std::string_view ean);

}  // namespace awizo
