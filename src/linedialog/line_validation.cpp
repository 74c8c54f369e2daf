#include <array>

#include "formats/customs_number.h"
#include "linedialog/dlg_dodaj.h"
#include "platform/forms/boxes.h"
#include "platform/text.h"

namespace awizo {
namespace {

// Buyers to whom more may be despatched than they ordered.
constexpr std::array<std::string_view, 2> buyersTakingMore{"4607173499998", "4607070199991"};

}  // namespace

bool DlgDodaj::Walidacja() {
  return checkProductAndQuantities() && checkPackedQuantity() && checkAmounts() &&
         checkCustomsNumber() && checkCountry();
}

bool DlgDodaj::checkProductAndQuantities() {
  const Conversions& conversions = editor_.conversions;
  if (!conversions.isNumeric(txtlEANProdWart.text())) {
    return refuse(screen(), "Стоимость для поля 'Штрих-код товара' есть ошибочная или отсутсвует",
                  &txtlEANProdWart);
  }
  txtIloscZam_Validate();
  if (!txtIloscZam.text().empty() && !conversions.isNumeric(txtIloscZam.text())) {
    return refuse(screen(), "Неправильно количество в поле 'Количество заказа'", &txtIloscZam);
  }
  txtIloscPotw_Validate();
  if (!conversions.isNumeric(txtIloscPotw.text())) {
    return refuse(screen(),
                  "Стоимость для поля 'Количество отгружено' есть ошибочная или отсутсвует",
                  &txtIloscPotw);
  }
  if (txtIloscZam.text().empty()) return true;
  const double ordered = conversions.MyDouble(std::string(trimmed(txtIloscZam.text())));
  const double despatched = conversions.MyDouble(std::string(trimmed(txtIloscPotw.text())));
  if (despatched <= ordered) return true;
  for (const std::string_view buyer : buyersTakingMore) {
    if (editor_.platform.locale.sameIgnoringCase(editor_.session.BuyerILN, buyer)) return true;
  }
  return refuse(screen(), "Подтверждённое количество больше заказанного количества товара",
                &txtIloscPotw);
}

bool DlgDodaj::checkPackedQuantity() {
  if (GetMaxQuantity() >= 0) return true;
  return refuse(screen(),
                "Подтверждённое количество меньше, чем суммарное количество товара в упаковках.\r"
                "Удалите, пожалуйста, принадлежность товарных позиции к упаковке  или увеличте \r"
                "подтверждённое количество товара.",
                nullptr);
}

bool DlgDodaj::checkAmounts() {
  const Conversions& conversions = editor_.conversions;
  txtCenaNetto_Validate();
  if (!txtCenaNetto.text().empty() && !conversions.isNumeric(txtCenaNetto.text())) {
    return refuse(screen(), "Неправильно количество в поле 'Цена за единицу без НДС'",
                  &txtCenaNetto);
  }
  txtAmount_Validate();
  if (!txtAmount.text().empty() && !conversions.isNumeric(txtAmount.text())) {
    return refuse(screen(), "Неправильно количество в поле 'Сумма без НДС'", &txtAmount);
  }
  return true;
}

bool DlgDodaj::checkCustomsNumber() {
  if (txtCDN1.text().empty() && txtCDN3.text().empty()) return true;
  txtCDN1_Validate();
  if (countCharacters(txtCDN1.text()) < 8 ||
      !IsCDNPartNumeric(editor_.conversions, txtCDN1.text())) {
    return warn(screen(), "ГТД - обязательный", &txtCDN1);
  }
  txtCDN3_Validate();
  if (countCharacters(txtCDN3.text()) != 7 ||
      !IsCDNPartNumeric(editor_.conversions, txtCDN3.text())) {
    return warn(screen(), "ГТД - обязательный", &txtCDN3);
  }
  return true;
}

// "(RU)Россия" leaves the dialog as "RU".
bool DlgDodaj::checkCountry() {
  std::string country = comboCountry.text();
  CheckIsoCountry(editor_.session, isoCodes_, editor_.platform.locale, country);
  if (!editor_.session.IsoCheckOk) return warn(screen(), "Код ISO неправильный", nullptr);
  comboCountry.setText(editor_.session.IsoCheckCode);
  return true;
}

void DlgDodaj::CheckVAT(std::int16_t which) {
  if (which == 0 && cboxKodVAT.index() == 1) cboxStawkaVAT.setIndex(0);
  if (which == 1 && cboxStawkaVAT.index() >= 1) cboxKodVAT.setIndex(0);
}

std::string DlgDodaj::MyCalculateAmount() const {
  const Conversions& conversions = editor_.conversions;
  return conversions.NormalizeDecimal(
      conversions.MultiplyToAmount(Conversions::CommaToDot(txtIloscPotw.text()),
                                   Conversions::CommaToDot(txtCenaNetto.text())),
      2);
}

std::string DlgDodaj::MyCalculateExpiryDate() const {
  return editor_.conversions.AddPeriodToDate(dtProdDate.date().value(), LinePeriod,
                                             LinePeriodFormat);
}

// Leaving a field tidies its text and never refuses.

void DlgDodaj::txtIloscZam_Validate() {
  txtIloscZam.setText(
      editor_.conversions.NormalizeDecimal(std::string(trimmed(txtIloscZam.text())), 3));
}

void DlgDodaj::txtIloscPotw_Validate() {
  txtIloscPotw.setText(std::string(trimmed(txtIloscPotw.text())));
  txtIloscPotw.setText(editor_.conversions.NormalizeDecimal(std::string(txtIloscPotw.text()), 3));
}

void DlgDodaj::txtCenaNetto_Validate() {
  txtCenaNetto.setText(
      editor_.conversions.NormalizeDecimal(std::string(trimmed(txtCenaNetto.text())), 2));
}

void DlgDodaj::txtAmount_Validate() {
  txtAmount.setText(
      editor_.conversions.NormalizeDecimal(std::string(trimmed(txtAmount.text())), 2));
}

void DlgDodaj::txtCDN1_Validate() {
  txtCDN1.setText(PadCDNPart(editor_.conversions, txtCDN1.text(), 8));
}

void DlgDodaj::txtCDN3_Validate() {
  txtCDN3.setText(PadCDNPart(editor_.conversions, txtCDN3.text(), 7));
}

}  // namespace awizo
