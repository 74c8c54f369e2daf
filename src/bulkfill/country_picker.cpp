#include "bulkfill/country_picker.h"

#include <algorithm>

namespace awizo {

void Image2_Click(Editor& editor, DlgIsoCodes& isoCodes, DlgDodaj& lineDialog) {
  DropDownList& countries = editor.form.comboCountry;
  std::string& chosen = editor.session.IsoResult;
  chosen = countries.text();
  isoCodes.touch().showModal();
  countries.setText(chosen);
  const std::vector<std::string> rows = lineDialog.touch().comboCountry.rows();
  countries.clear();
  for (const std::string& row : rows) countries.addRow(row);
  if (chosen.empty()) return;
  if (std::find(rows.begin(), rows.end(), chosen) == rows.end()) {
    countries.addRow(chosen);
    lineDialog.comboCountry.addRow(chosen);
  }
  countries.setText(chosen);
}

}  // namespace awizo
