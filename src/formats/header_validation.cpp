#include "formats/header_validation.h"

#include "platform/forms/boxes.h"
#include "platform/text.h"

namespace awizo {

std::vector<HeaderFault> headerFaults(const Editor& editor) {
  AwizoForm& form = editor.form;
  std::vector<HeaderFault> faults;
  // A warning about a field leads to it, but for those that name another place.
  const auto add = [&](std::string_view message, Control& field) {
    faults.push_back({message, &field, &field});
  };
  if (form.txtNrAwiza.text().empty()) {
    add("В поле Номер Документа вводите номер распечатанной товарной накладной", form.txtNrAwiza);
  }
  const auto& documentDate = form.txtDataAwiza.date();
  if (!documentDate) add("В поле ‘Дата документа’ не указана величина", form.txtDataAwiza);
  const auto& deliveryDate = form.txtEstimatedDeliveryDate.date();
  if (!deliveryDate) {
    add("В поле ‘Запланированная дата доставки’ не указана величина",
        form.txtEstimatedDeliveryDate);
  }
  // Both date rules send the user to the document's date, from which the delivery is planned.
  if (deliveryDate && *deliveryDate < editor.platform.clock.today()) {
    faults.push_back({"Дата доставки не может быть меньше текущей даты",
                      &form.txtEstimatedDeliveryDate, &form.txtDataAwiza});
  }
  if (documentDate && deliveryDate && *documentDate > *deliveryDate) {
    add("Дата документа не может быть больше даты доставки", form.txtDataAwiza);
  }
  if (trimmed(form.txtNrZam.text()).empty()) {
    faults.push_back({"В поле ‘Номер заказа’ не указана величина", &form.txtNrZam});
  }
  const std::string_view codeByBuyer = trimmed(form.txtCodeByBuyer.text());
  if (!codeByBuyer.empty() && !editor.conversions.isNumeric(codeByBuyer)) {
    add("Неправильно количество в поле 'Код поставщика у покупателя'", form.txtCodeByBuyer);
  }
  return faults;
}

bool ValidateHeader(Editor& editor) {
  const std::vector<HeaderFault> faults = headerFaults(editor);
  if (faults.empty()) return true;
  return warn(editor.screen(), faults.front().message, faults.front().focus);
}

}  // namespace awizo
