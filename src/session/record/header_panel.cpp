#include "session/record/header_panel.h"

#include <optional>

#include "platform/forms/report_errors.h"
#include "session/record/countries.h"

namespace awizo {

std::string symbolKraj(std::int16_t index, std::string_view typedText) {
  if (index == -1) return std::string(typedText);
  const auto place = static_cast<std::size_t>(index);
  return index >= 0 && place < fixedCountries().size() ? std::string(fixedCountries()[place].code)
                                                       : std::string();
}

std::int16_t indexKraj(std::string_view code) {
  std::int16_t index = 0;
  for (const FixedCountry& country : fixedCountries()) {
    if (country.code == code) return index;
    ++index;
  }
  return -1;
}

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
