#include "tables/upper/editing/clear_form.h"

#include "session/record/header_fields.h"
#include "tables/clear_tables.h"

namespace awizo {

void ClearForm(Editor& editor) {
  AwizoForm& form = editor.form;
  const Date today = editor.platform.clock.today();
  for (const HeaderField& field : headerFields(form)) emptyField(field, today);
  for (Label* label :
       {&form.lblILNKupWart, &form.lblNameKupWart, &form.lblILNMiejscaDostValue,
        &form.lblNazwaMiejscaDostawy, &form.lblILNSprzedWart, &form.lblNameSprzedWart}) {
    label->setCaption("");
  }
  form.HeaderBuyerILN.clear();
  form.HeaderBuyerName.clear();
  form.HeaderSellerILN.clear();
  ClearGrdPozycje(editor);
  ClearGrdSuma(editor);
}

}  // namespace awizo
