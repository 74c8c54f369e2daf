#include "formats/header_validation.h"

#include "platform/forms/boxes.h"
#include "platform/text.h"

namespace awizo {

bool ValidateHeader(Editor& editor) {
  AwizoForm& form = editor.form;
  if (form.txtNrAwiza.text().empty()) {
    return warn(editor.screen(),
                "В поле Номер Документа вводите номер распечатанной товарной накладной",
                &form.txtNrAwiza);
  }
  const auto& documentDate = form.txtDataAwiza.date();
  if (!documentDate) {
    return warn(editor.screen(), "В поле ‘Дата документа’ не указана величина", &form.txtDataAwiza);
  }
  const auto& deliveryDate = form.txtEstimatedDeliveryDate.date();
  if (!deliveryDate) {
    return warn(editor.screen(), "В поле ‘Запланированная дата доставки’ не указана величина",
                &form.txtEstimatedDeliveryDate);
  }
  // Both date rules send the user to the document's date, from which the delivery is planned.
  if (*deliveryDate < editor.platform.clock.today()) {
    return warn(editor.screen(), "Дата доставки не может быть меньше текущей даты",
                &form.txtDataAwiza);
  }
  if (*documentDate > *deliveryDate) {
    return warn(editor.screen(), "Дата документа не может быть больше даты доставки",
                &form.txtDataAwiza);
  }
  if (trimmed(form.txtNrZam.text()).empty()) {
    return warn(editor.screen(), "В поле ‘Номер заказа’ не указана величина", nullptr);
  }
  const std::string_view codeByBuyer = trimmed(form.txtCodeByBuyer.text());
  if (!codeByBuyer.empty() && !editor.conversions.isNumeric(codeByBuyer)) {
    return warn(editor.screen(), "Неправильно количество в поле 'Код поставщика у покупателя'",
                &form.txtCodeByBuyer);
  }
  return true;
}

}  // namespace awizo
