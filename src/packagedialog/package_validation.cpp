#include "packagedialog/package_validation.h"

#include "linedialog/tidy_number.h"
#include "packagedialog/serial_number.h"
#include "platform/forms/boxes.h"
#include "platform/text.h"

namespace awizo {
namespace {

bool checkTypeAndDescription(Work& work, DlgSzczegoly& dialog) {
  if (dialog.cboxPackageType.index() < 0) {
    return refuse(work.screen(), "В поле 'Тип упаковки' не указана величина",
                  &dialog.cboxPackageType);
  }
  const std::string description(trimmed(dialog.txtPackageDesc.text()));
  if (description.empty()) {
    return refuse(work.screen(), "В поле 'Описание упаковки' не указана величина",
                  &dialog.txtPackageDesc);
  }
  if (dialog.AddMode && dialog.IsKnownDescription(description)) {
    return refuse(work.screen(),
                  "Данное значение поля 'Описание упаковки' уже используется в системе",
                  &dialog.txtPackageDesc);
  }
  return true;
}

/// The length is a lower bound only. A text of spaces passes: the second rule doesn't trim.
bool checkDeliveryPlace(Work& work, DlgSzczegoly& dialog) {
  const std::string_view iln = trimmed(dialog.cboxILNLokalizacji.text());
  if (!iln.empty() && (countCharacters(iln) < 13 || !work.conversions.isNumeric(iln))) {
    return refuse(work.screen(), "Неправильно количество в поле 'ILN места доставки'",
                  &dialog.cboxILNLokalizacji);
  }
  if (dialog.cboxILNLokalizacji.text().empty())
    return refuse(work.screen(), "Не заполнено поле 'место доставки'", nullptr);
  return true;
}

bool checkMeasure(Work& work, TextField& field, std::string_view message) {
  tidyNumber(work.conversions, field, 3);
  if (field.text().empty() || work.conversions.isNumeric(field.text())) return true;
  return refuse(work.screen(), message, &field);
}

bool checkMeasures(Work& work, DlgSzczegoly& dialog) {
  return checkMeasure(work, dialog.txtPackageWeight,
                      "Неправильно количество в поле 'Вес упаковки кг (килограммы)'") &&
         checkMeasure(work, dialog.txtPackageLength,
                      "Неправильно количество в поле 'Длина упаковки м (метры)'") &&
         checkMeasure(work, dialog.txtPackageWidth,
                      "Неправильно количество в поле 'Ширина упаковки м (метры)'") &&
         checkMeasure(work, dialog.txtPackageHeight,
                      "Неправильно количество в поле 'Высота упаковки м (метры)'");
}

bool checkSerialNumber(Work& work, DlgSzczegoly& dialog) {
  const std::string refusal = serialNumberRefusal(dialog.txtSerialNumberN.text());
  if (refusal.empty()) return true;
  return refuse(work.screen(), refusal,
                dialog.txtSerialNumberN.text().empty() ? nullptr : &dialog.txtSerialNumberN);
}

}  // namespace

bool Walidacja(Work& work, DlgSzczegoly& dialog) {
  return checkTypeAndDescription(work, dialog) && checkDeliveryPlace(work, dialog) &&
         checkMeasures(work, dialog) && checkSerialNumber(work, dialog);
}

}  // namespace awizo
