#pragma once

#include "linedialog/dlg_iso_codes.h"
#include "platform/forms/drop_down_list.h"

namespace awizo {

// The line dialog's list of countries grows with the countries used: entries like "(RU)Россия".

/// The list's text is a code of two letters: the country of that code gets a row, unless one is the
/// same but for case. A code that no country has adds nothing.
void addCountryOfCode(DropDownList& list, DlgIsoCodes& isoCodes, const Locale& locale);

/// Lets the user pick from all countries. The list's text becomes what was picked, for which a row
/// is added unless one is the same but for case. After a cancelled choice an earlier one is set
/// again, and without an earlier one the text is emptied.
void pickCountry(DropDownList& list, DlgIsoCodes& isoCodes, const SessionState& session,
                 const Locale& locale);

}  // namespace awizo
