#include "tables/upper/editing/country_lists.h"

#include <algorithm>

namespace awizo {

void copyCountries(Editor& editor, const DlgDodaj& dialog) {
  editor.form.comboCountry.clear();
  for (const std::string& row : dialog.comboCountry.rows()) editor.form.comboCountry.addRow(row);
}

void addCountry(Editor& editor, DlgDodaj& dialog, const std::string& entry) {
  DropDownList& countries = editor.form.comboCountry;
  const std::vector<std::string>& rows = countries.rows();
  if (std::find(rows.begin(), rows.end(), entry) != rows.end()) return;
  countries.addRow(entry);
  dialog.touch().comboCountry.addRow(entry);
}

}  // namespace awizo
