#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "session/record/editor.h"

namespace awizo {

/// Country code at the index of the main form's list of countries; the typed text itself for -1,
/// which is what a list reports when nothing was picked; the empty text past the last country.
std::string symbolKraj(std::int16_t index, std::string_view typedText);

/// Index of the country code in that list; case matters; -1 for any other text.
std::int16_t indexKraj(std::string_view code);

/// Shows buyer and seller of the session in their labels.
void showParties(Editor& editor);

/// Shows the parties, today as the document's date and the defaults of the header. An error is
/// shown and leaves the header as far as it got.
void SetHeader(Editor& editor);

}  // namespace awizo
