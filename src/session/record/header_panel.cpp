#include "session/record/header_panel.h"

#include <optional>

#include "platform/forms/report_errors.h"

namespace awizo {

void showParties(Editor& editor) {
  const SessionState& session = editor.session;
  editor.form.lblILNKupWart.setCaption(session.BuyerILN);
  editor.form.lblNameKupWart.setCaption(session.BuyerName);
  editor.form.lblILNSprzedWart.setCaption(session.SellerILN);
  editor.form.lblNameSprzedWart.setCaption(session.SellerName);
}

void SetHeader(Editor& editor) {
  reportErrors(editor.screen(), "Произошла ошибка в : SetHeader()", [&] {
    AwizoForm& form = editor.form;
    showParties(editor);
    form.txtDataAwiza.setDate(editor.platform.clock.today());
    form.txtDespatchAdviceTime.setTime(std::nullopt);
    form.cboxPackageDescription.setIndex(2);
    form.txtGoodsIdentity.setText("0");
    form.btnUsun.setEnabled(true);
    form.btnEdytuj.setEnabled(true);
  });
}

}  // namespace awizo
