#pragma once

#include <string>

#include "foundation/conversions.h"

namespace awizo {

// Conversions as scripts know them: they change the text of their caller too. What is inside the
// system calls those of Conversions, which don't.

/// Commas and points of the caller's text become the locale's separator.
std::string NormalizeDecimal(const Conversions& conversions, std::string& text, int decimals);
/// The caller's text becomes FormatFixed of itself, or "-1" if that is empty.
std::string FormatForXml(const Conversions& conversions, std::string& text, int decimals);
/// Commas and points of the caller's text become the locale's separator.
double MyDouble(const Conversions& conversions, std::string& text);

}  // namespace awizo
