#pragma once

#include <array>
#include <string>
#include <string_view>

#include "platform/date.h"
#include "session/record/work.h"

namespace awizo {

// A customs declaration number is up to four fields joined by "/": 8 digits, a date "ddmmyy",
// 7 digits, and optionally 1 to 3 characters of any kind. The letter "П" may stand for the first
// digit of fields 1 and 3 and counts towards their width.

using CustomsNumberFields = std::array<std::string, 4>;

/// The four fields of a composite. One without field 4 has it empty; for a text that isn't three or
/// four pieces the fields are empty and field 2 is today.
CustomsNumberFields SplitCDN(Work& work, std::string_view cdn);

/// The composite of the four fields; the empty text where fields 1 and 3 are both empty. An empty
/// field 4 is left out. Tests nothing.
std::string JoinCDN(std::string_view field1, std::string_view field2, std::string_view field3,
                    std::string_view field4);

/// "ddmmyy".
std::string FormatCDNDate(Work& work, Date date);

/// The numeric test of fields 1 and 3. The letter "П" is tolerated anywhere.
bool IsCDNPartNumeric(const Conversions& conversions, std::string_view text);

/// The field filled up with zeros on the left, after a leading "П". The width counts characters,
/// that letter included, and is at least 1. A text that is no number gets no zeros.
std::string PadCDNPart(const Conversions& conversions, std::string_view text, int width);

/// The first field of the composite that has a wrong form, from 1 to 4; 0 where all are right or
/// there is no number at all.
int faultyCustomsNumberField(Work& work, std::string_view cdn);
/// The same without a word in the log.
int faultyCustomsNumberField(const Conversions& conversions, std::string_view cdn);

}  // namespace awizo
