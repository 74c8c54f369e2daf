#include "packagedialog/dlg_szczegoly.h"
#include "platform/forms/boxes.h"
#include "platform/text.h"

namespace awizo {
namespace {

// A character counts as a digit when it is "0" or its numeric value isn't 0.
bool isDigitText(std::string_view text) {
  for (const char character : text) {
    if (character < '0' || character > '9') return false;
  }
  return true;
}

}  // namespace

int containerCheckDigit(std::string_view digits) {
  int sum = 0;
  for (std::size_t place = 0; place < 17; ++place) {
    const int digit = digits[place] - '0';
    sum += place % 2 == 0 ? digit * 3 : digit;
  }
  return (10 - sum % 10) % 10;
}

std::string serialNumberRefusal(std::string_view serial) {
  if (serial.empty()) return "Не заполнено поле 'серийный номер'";
  if (countCharacters(serial) != 18 || !isDigitText(serial)) return "Неправильный номер палеты";
  const int expected = containerCheckDigit(serial);
  if (expected == serial[17] - '0') return "";
  return "Неправильный номер палеты. Последней- контрольной цифре должно быть задано значение " +
         std::to_string(expected);
}

bool DlgSzczegoly::Walidacja() {
  return checkTypeAndDescription() && checkDeliveryPlace() && checkMeasures() &&
         checkSerialNumber();
}

bool DlgSzczegoly::checkTypeAndDescription() {
  if (cboxPackageType.index() < 0) {
    return refuse(screen(), "В поле 'Тип упаковки' не указана величина", &cboxPackageType);
  }
  const std::string description(trimmed(txtPackageDesc.text()));
  if (description.empty()) {
    return refuse(screen(), "В поле 'Описание упаковки' не указана величина", &txtPackageDesc);
  }
  if (AddMode && IsKnownDescription(description)) {
    return refuse(screen(), "Данное значение поля 'Описание упаковки' уже используется в системе",
                  &txtPackageDesc);
  }
  return true;
}

// The length is a lower bound only. A text of blanks passes: the second rule doesn't trim.
bool DlgSzczegoly::checkDeliveryPlace() {
  const std::string_view iln = trimmed(cboxILNLokalizacji.text());
  if (!iln.empty() && (countCharacters(iln) < 13 || !editor_.conversions.isNumeric(iln))) {
    return refuse(screen(), "Неправильно количество в поле 'ILN места доставки'",
                  &cboxILNLokalizacji);
  }
  if (cboxILNLokalizacji.text().empty())
    return refuse(screen(), "Не заполнено поле 'место доставки'", nullptr);
  return true;
}

bool DlgSzczegoly::checkMeasures() {
  return checkMeasure(txtPackageWeight,
                      "Неправильно количество в поле 'Вес упаковки кг (килограммы)'") &&
         checkMeasure(txtPackageLength,
                      "Неправильно количество в поле 'Длина упаковки м (метры)'") &&
         checkMeasure(txtPackageWidth,
                      "Неправильно количество в поле 'Ширина упаковки м (метры)'") &&
         checkMeasure(txtPackageHeight,
                      "Неправильно количество в поле 'Высота упаковки м (метры)'");
}

bool DlgSzczegoly::checkMeasure(TextField& field, std::string_view message) {
  measure_Validate(field);
  if (field.text().empty() || editor_.conversions.isNumeric(field.text())) return true;
  return refuse(screen(), message, &field);
}

bool DlgSzczegoly::checkSerialNumber() {
  const std::string refusal = serialNumberRefusal(txtSerialNumberN.text());
  if (refusal.empty()) return true;
  return refuse(screen(), refusal, txtSerialNumberN.text().empty() ? nullptr : &txtSerialNumberN);
}

void DlgSzczegoly::measure_Validate(TextField& field) {
  field.setText(editor_.conversions.NormalizeDecimal(std::string(trimmed(field.text())), 3));
}

bool DlgSzczegoly::CheckMandatory(std::string_view caption, TextField& field) {
  if (!editor_.platform.locale.sameIgnoringCase(field.tag, "Mandatory") || !field.text().empty()) {
    return true;
  }
  screen().showCritical("XXX '" + replaceAll(caption, ":", "") + "'", "VIRD");
  field.setFocus();
  return false;
}

}  // namespace awizo
