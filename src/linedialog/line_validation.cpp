#include "linedialog/line_validation.h"

#include <array>

#include "formats/customs_number.h"
#include "linedialog/tidy_number.h"
#include "platform/forms/boxes.h"
#include "platform/text.h"

namespace awizo {
namespace {

/// Buyers to whom more may be despatched than they ordered.
constexpr std::array<std::string_view, 2> buyersTakingMore{"4607173499998", "4607070199991"};

bool checkProductAndQuantities(Work& work, DlgDodaj& dialog) {
  const Conversions& conversions = work.conversions;
  if (!conversions.isNumeric(dialog.txtlEANProdWart.text())) {
    return refuse(work.screen(),
                  "Стоимость для поля 'Штрих-код товара' есть ошибочная или отсутсвует",
                  &dialog.txtlEANProdWart);
  }
  txtIloscZam_Validate(conversions, dialog);
  if (!dialog.txtIloscZam.text().empty() && !conversions.isNumeric(dialog.txtIloscZam.text())) {
    return refuse(work.screen(), "Неправильно количество в поле 'Количество заказа'",
                  &dialog.txtIloscZam);
  }
  txtIloscPotw_Validate(conversions, dialog);
  if (!conversions.isNumeric(dialog.txtIloscPotw.text())) {
    return refuse(work.screen(),
                  "Стоимость для поля 'Количество отгружено' есть ошибочная или отсутсвует",
                  &dialog.txtIloscPotw);
  }
  if (dialog.txtIloscZam.text().empty()) return true;
  const double ordered = conversions.MyDouble(trimmed(dialog.txtIloscZam.text()));
  const double despatched = conversions.MyDouble(trimmed(dialog.txtIloscPotw.text()));
  if (despatched <= ordered) return true;
  for (const std::string_view buyer : buyersTakingMore) {
    if (work.platform.locale.sameIgnoringCase(work.session.BuyerILN, buyer)) return true;
  }
  return refuse(work.screen(), "Подтверждённое количество больше заказанного количества товара",
                &dialog.txtIloscPotw);
}

bool checkPackedQuantity(Work& work, DlgDodaj& dialog) {
  if (dialog.GetMaxQuantity() >= 0) return true;
  return refuse(work.screen(),
                "Подтверждённое количество меньше, чем суммарное количество товара в упаковках.\r"
                "Удалите, пожалуйста, принадлежность товарных позиции к упаковке  или увеличте \r"
                "подтверждённое количество товара.",
                nullptr);
}

bool checkAmounts(Work& work, DlgDodaj& dialog) {
  const Conversions& conversions = work.conversions;
  txtCenaNetto_Validate(conversions, dialog);
  if (!dialog.txtCenaNetto.text().empty() && !conversions.isNumeric(dialog.txtCenaNetto.text())) {
    return refuse(work.screen(), "Неправильно количество в поле 'Цена за единицу без НДС'",
                  &dialog.txtCenaNetto);
  }
  txtAmount_Validate(conversions, dialog);
  if (!dialog.txtAmount.text().empty() && !conversions.isNumeric(dialog.txtAmount.text())) {
    return refuse(work.screen(), "Неправильно количество в поле 'Сумма без НДС'",
                  &dialog.txtAmount);
  }
  return true;
}

bool checkCustomsNumber(Work& work, DlgDodaj& dialog) {
  const Conversions& conversions = work.conversions;
  if (dialog.txtCDN1.text().empty() && dialog.txtCDN3.text().empty()) return true;
  txtCDN1_Validate(conversions, dialog);
  if (countCharacters(dialog.txtCDN1.text()) < 8 ||
      !IsCDNPartNumeric(conversions, dialog.txtCDN1.text())) {
    return warn(work.screen(), "ГТД - обязательный", &dialog.txtCDN1);
  }
  txtCDN3_Validate(conversions, dialog);
  if (countCharacters(dialog.txtCDN3.text()) != 7 ||
      !IsCDNPartNumeric(conversions, dialog.txtCDN3.text())) {
    return warn(work.screen(), "ГТД - обязательный", &dialog.txtCDN3);
  }
  return true;
}

/// "(RU)Россия" leaves the dialog as "RU".
bool checkCountry(Work& work, DlgDodaj& dialog, DlgIsoCodes& isoCodes) {
  std::string country = dialog.comboCountry.text();
  CheckIsoCountry(work.session, isoCodes, work.platform.locale, country);
  if (!work.session.IsoCheckOk) return warn(work.screen(), "Код ISO неправильный", nullptr);
  dialog.comboCountry.setText(work.session.IsoCheckCode);
  return true;
}

}  // namespace

bool Walidacja(Work& work, DlgDodaj& dialog, DlgIsoCodes& isoCodes) {
  return checkProductAndQuantities(work, dialog) && checkPackedQuantity(work, dialog) &&
         checkAmounts(work, dialog) && checkCustomsNumber(work, dialog) &&
         checkCountry(work, dialog, isoCodes);
}

void txtIloscZam_Validate(const Conversions& conversions, DlgDodaj& dialog) {
  tidyNumber(conversions, dialog.txtIloscZam, 3);
}

/// The trimmed text is a change of its own, which the calculations see.
void txtIloscPotw_Validate(const Conversions& conversions, DlgDodaj& dialog) {
  dialog.txtIloscPotw.setText(std::string(trimmed(dialog.txtIloscPotw.text())));
  tidyNumber(conversions, dialog.txtIloscPotw, 3);
}

void txtCenaNetto_Validate(const Conversions& conversions, DlgDodaj& dialog) {
  tidyNumber(conversions, dialog.txtCenaNetto, 2);
}

void txtAmount_Validate(const Conversions& conversions, DlgDodaj& dialog) {
  tidyNumber(conversions, dialog.txtAmount, 2);
}

void txtCDN1_Validate(const Conversions& conversions, DlgDodaj& dialog) {
  dialog.txtCDN1.setText(PadCDNPart(conversions, dialog.txtCDN1.text(), 8));
}

void txtCDN3_Validate(const Conversions& conversions, DlgDodaj& dialog) {
  dialog.txtCDN3.setText(PadCDNPart(conversions, dialog.txtCDN3.text(), 7));
}

}  // namespace awizo
