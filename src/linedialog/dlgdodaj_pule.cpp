#include "linedialog/dlgdodaj_pule.h"

#include <string>

namespace awizo {

DlgdodajPule::DlgdodajPule(Screen& screen, const Conversions& conversions)
    : Form(screen, "DlgdodajPule"),
      Label2(*this, "Label2", "Упаковка:"),
      cboxPackages(*this, "cboxPackages", "Упаковка:", ListStyle::listOnly),
      Label1(*this, "Label1", "Количество:"),
      txtQuantity(*this, "txtQuantity", "Количество:", 35, Alignment::right),
      UpDown1(*this, "UpDown1", txtQuantity),
      btnDodaj(*this, "btnDodaj", "&Добавить"),
      btnZamknij(*this, "btnZamknij", "&Назад"),
      conversions_(conversions) {
  setCaption("Добавь товар в упаковку");
  acceptButton = &btnDodaj;
  closeButton = &btnZamknij;
  onClose = [this] { btnZamknij_Click(); };
  btnDodaj.onClick = [this] { btnDodaj_Click(); };
  btnZamknij.onClick = [this] { btnZamknij_Click(); };
  txtQuantity.onChange = [this] { txtQuantity_Change(); };
}

void DlgdodajPule::btnDodaj_Click() {
  if (!Walidacja()) return;
  DlgResult = 1;
  hide();
}

void DlgdodajPule::btnZamknij_Click() {
  DlgResult = 0;
  hide();
}

bool DlgdodajPule::Walidacja() {
  if (cboxPackages.index() < 0) {
    screen().showCritical("В поле 'Упаковка' не указана величина", "VIRD");
    cboxPackages.setFocus();
    return false;
  }
  if (txtQuantity.text().empty()) {
    showRange();
    txtQuantity.setFocus();
    return false;
  }
  return true;
}

/// The quantity is checked as it is typed: a wrong one becomes the largest that is allowed.
void DlgdodajPule::txtQuantity_Change() {
  const std::string text = txtQuantity.text();
  if (text.empty()) return;
  if (!conversions_.isNumeric(text)) {
    txtQuantity.setText(std::to_string(UpDown1.max()));
    screen().showCritical("Значение должно быть числовым", "VIRD");
    txtQuantity.setFocus();
    return;
  }
  const double value = conversions_.toDouble(conversions_.NormalizeDecimal(text, 2));
  if (value < UpDown1.min() || value > UpDown1.max()) {
    txtQuantity.setText(std::to_string(UpDown1.max()));
    showRange();
    txtQuantity.setFocus();
  }
}

void DlgdodajPule::showRange() {
  screen().showCritical("Введено неправильное значение (число должно принадлежать промежутку от " +
                            std::to_string(UpDown1.min()) + " до " + std::to_string(UpDown1.max()) +
                            ").",
                        "VIRD");
}

KeptPart DlgdodajPule::keep(const KeptPart& earlier) const {
  return keptOf(earlier, members(*this));
}

void DlgdodajPule::putBack(const Kept& kept) { putBackInto(members(*this), kept); }

}  // namespace awizo
