#pragma once

#include <string>
#include <string_view>

namespace awizo {

/// What is wrong with the serial number of a package, in the dialog's words; empty where nothing is
/// wrong.
std::string serialNumberRefusal(std::string_view serial);
/// The right last digit of an 18-digit serial shipping container code, from its first 17.
int containerCheckDigit(std::string_view digits);

}  // namespace awizo
