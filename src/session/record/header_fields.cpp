#include "session/record/header_fields.h"

#include "foundation/date_text.h"

namespace awizo {
namespace {

void setNothing(TextField& field) { field.setText(""); }
void setNothing(DatePicker& picker) { picker.setDate(std::nullopt); }
void setNothing(TimePicker& picker) { picker.setTime(std::nullopt); }
void setNothing(DropDownList& list) { list.clearSelection(); }

std::string textOf(const TextField& field) { return field.text(); }
std::string textOf(const DatePicker& picker) {
  return picker.date() ? isoDate(*picker.date()) : "";
}
std::string textOf(const TimePicker& picker) {
  return picker.time() ? hourMinute(*picker.time()) : "";
}
std::string textOf(const DropDownList& list) { return list.text(); }

}  // namespace

std::vector<HeaderField> headerFields(AwizoForm& form) {
  using enum WhenEmptied;
  return {{&form.txtNrAwiza},
          {&form.txtNrZam},
          {&form.txtCodeByBuyer},
          {&form.txtDataAwiza, today},
          {&form.txtEstimatedDeliveryDate, today},
          {&form.txtDespatchAdviceTime},
          {&form.txtEstimatedDeliveryTime},
          {&form.dpDataZam},
          {&form.cboxPackageDescription, asBefore},
          {&form.txtGoodsIdentity}};
}

void emptyField(const HeaderField& field, Date today) {
  if (field.whenEmptied == WhenEmptied::asBefore) return;
  if (field.whenEmptied == WhenEmptied::today) {
    std::get<DatePicker*>(field.control)->setDate(today);
    return;
  }
  std::visit([](auto* control) { setNothing(*control); }, field.control);
}

std::string valueText(const HeaderField& field) {
  return std::visit([](const auto* control) { return textOf(*control); }, field.control);
}

}  // namespace awizo
