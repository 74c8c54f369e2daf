#include "bulkfill/country_picker.h"

#include "tables/upper/editing/country_lists.h"

namespace awizo {

void Image2_Click(Editor& editor, DlgIsoCodes& isoCodes, DlgDodaj& lineDialog) {
  DropDownList& countries = editor.form.comboCountry;
  std::string& chosen = editor.session.IsoResult;
  chosen = countries.text();
  isoCodes.touch().showModal();
  countries.setText(chosen);
  copyCountries(editor, lineDialog.touch());
  if (chosen.empty()) return;
  addCountry(editor, lineDialog, chosen);
  countries.setText(chosen);
}

}  // namespace awizo
