#include "tables/editing/clear_form.h"

#include "tables/clear_tables.h"

namespace awizo {

void ClearForm(Editor& editor) {
  AwizoForm& form = editor.form;
  const Date today = editor.platform.clock.today();
  form.txtNrAwiza.setText("");
  form.txtNrZam.setText("");
  form.txtCodeByBuyer.setText("");
  form.txtDataAwiza.setDate(today);
  form.txtEstimatedDeliveryDate.setDate(today);
  form.txtDespatchAdviceTime.setTime(std::nullopt);
  form.txtEstimatedDeliveryTime.setTime(std::nullopt);
  form.dpDataZam.setDate(std::nullopt);
  for (Label* label :
       {&form.lblILNKupWart, &form.lblNameKupWart, &form.lblILNMiejscaDostValue,
        &form.lblNazwaMiejscaDostawy, &form.lblILNSprzedWart, &form.lblNameSprzedWart}) {
    label->setCaption("");
  }
  form.HeaderBuyerILN.clear();
  form.HeaderBuyerName.clear();
  form.HeaderSellerILN.clear();
  form.txtGoodsIdentity.setText("");
  ClearGrdPozycje(editor);
  ClearGrdSuma(editor);
}

}  // namespace awizo
