#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/date.h"

namespace awizo {

// Dates and times as lines of JSON and options hold them; the texts of isoDate and hourMinute are
// among them.

/// "2026-11-30"; none for a text that is no such day.
std::optional<Date> parseDate(std::string_view text);
/// "10:30" or "10:30:15"; none for a text that is no such time.
std::optional<TimeOfDay> parseTime(std::string_view text);
/// "2026-11-30T10:30:15"; none for a text that is no such moment.
std::optional<Moment> parseMoment(std::string_view text);

}  // namespace awizo
