#include "linedialog/country_list.h"

#include <algorithm>

#include "session/record/countries.h"

namespace awizo {
namespace {

void addMissingRow(DropDownList& list, const std::string& entry, const Locale& locale) {
  const auto isEntry = [&](const std::string& row) { return locale.sameIgnoringCase(row, entry); };
  if (std::any_of(list.rows().begin(), list.rows().end(), isEntry)) return;
  list.addRow(entry);
}

}  // namespace

void addCountryOfCode(DropDownList& list, DlgIsoCodes& isoCodes, const Locale& locale) {
  const std::string& code = list.text();
  const std::optional<int> index = isoCodes.findCode(
      [&](const std::string& cell) { return locale.sameIgnoringCase(cell, code); });
  if (!index) return;
  addMissingRow(list, countryEntry(code, isoCodes.grdISO.cell(*index - 1)), locale);
}

void pickCountry(DropDownList& list, DlgIsoCodes& isoCodes, const SessionState& session,
                 const Locale& locale) {
  const int count = list.count();
  isoCodes.touch().showModal();
  const std::string& chosen = session.IsoResult;
  list.setText(chosen);
  if (!chosen.empty()) addMissingRow(list, chosen, locale);
  if (list.count() != count) list.setIndex(list.count() - 1);
}

}  // namespace awizo
