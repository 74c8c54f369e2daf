#include "session/record/awizo_form.h"

#include "tables/columns/columns.h"

namespace awizo {

AwizoForm::AwizoForm(Screen& screen, const Clock& clock)
    : Form(screen, "AwizoWysylki"),
      frmDaneNaglowka(*this, "frmDaneNaglowka", "                      Заголовок"),
      txtNrAwiza(*this, "txtNrAwiza", "Номер документа (транспортной накладной):"),
      txtDataAwiza(*this, "txtDataAwiza", clock.today(), NoValue::allowed, "Дата документа:"),
      txtDespatchAdviceTime(*this, "txtDespatchAdviceTime", clock.now().time, "Время документа:"),
      txtNrZam(*this, "txtNrZam", "Номер заказа:"),
      dpDataZam(*this, "dpDataZam", clock.today(), NoValue::allowed, "Дата заказа :"),
      txtEstimatedDeliveryDate(*this, "txtEstimatedDeliveryDate", clock.today(), NoValue::allowed,
                               "Дата  доставки:"),
      txtEstimatedDeliveryTime(*this, "txtEstimatedDeliveryTime", clock.now().time,
                               "Время доставки:"),
      txtCodeByBuyer(*this, "txtCodeByBuyer", "Код поставщика у покупателя:"),
      cboxPackageDescription(*this, "cboxPackageDescription",
                             "Количество в упаковке:", ListStyle::listOnly),
      txtGoodsIdentity(*this, "txtGoodsIdentity", "Идентификационный код паллета:"),
      lblILNSprzedWart(*this, "lblILNSprzedWart", "", "Продавец:"),
      lblNameSprzedWart(*this, "lblNameSprzedWart", "", "Продавец:"),
      lblILNKupWart(*this, "lblILNKupWart", "", "Покупатель:"),
      lblNameKupWart(*this, "lblNameKupWart", "", "Покупатель:"),
      lblILNMiejscaDostValue(*this, "lblILNMiejscaDostValue", "", "ILN места доставки:"),
      lblNazwaMiejscaDostWart(*this, "lblNazwaMiejscaDostWart", "", "Место доставки:"),
      lblAdresMiejscaDostawy(*this, "lblAdresMiejscaDostawy", "", "Адрес места доставки:"),
      lblNazwaMiejscaDostawy(*this, "lblNazwaMiejscaDostawy", "", "Адрес места доставки:"),
      lblCurrencyWart(*this, "lblCurrencyWart", "RUR", "Currency:"),
      lblOnLineStatus(*this, "lblOnLineStatus", "On-Line"),
      lblVersion(*this, "lblVersion", "VIRDDesAdv 0.0.0.0"),
      lblNiepelnaWagaKom(*this, "lblNiepelnaWagaKom", "Не для всех позиций указан вес"),
      frmPozycje(*this, "frmPozycje", "Товарные позиции"),
      grdPozycje(*this, "grdPozycje", lineColumnCount),
      txtEdycja(*this, "txtEdycja"),
      lblStawkaVAT(*this, "lblStawkaVAT", "Ставка НДС"),
      comboStawkaVAT(*this, "comboStawkaVAT", "Ставка НДС", ListStyle::listOnly),
      btnUzupelnij(*this, "btnUzupelnij", "Заполнить пустые поля для НДС"),
      btnNadpisz(*this, "btnNadpisz", "Заполнить все поля для НДС"),
      comboCountry(*this, "comboCountry"),
      Image2(*this, "Image2", "ISO коды стран."),
      btnUzupelnij2(*this, "btnUzupelnij2", "Заполнить пустые поля для 'Код страны производителя'"),
      btnNadpisz2(*this, "btnNadpisz2", "Заполнить все поля для 'Код страны производителя'"),
      btnDodaj(*this, "btnDodaj"),
      btnEdytuj(*this, "btnEdytuj"),
      btnUsun(*this, "btnUsun"),
      Frame1(*this, "Frame1", "Упаковки"),
      grdOpakowania(*this, "grdOpakowania", packageColumnCount),
      btnDodajOpak(*this, "btnDodajOpak"),
      btnEdytujOpak(*this, "btnEdytujOpak"),
      btnUsunOpak(*this, "btnUsunOpak"),
      frmPodsumowanie(*this, "frmPodsumowanie", "Итоги"),
      grdSuma(*this, "grdSuma", totalColumnCount),
      txtEdycjaSuma(*this, "txtEdycjaSuma"),
      btnPrzeslij(*this, "btnPrzeslij"),
      btnZapisz(*this, "btnZapisz"),
      btnWczytaj(*this, "btnWczytaj") {
  txtEdycja.setVisible(false);
  txtEdycjaSuma.setVisible(false);
}

KeptPart AwizoForm::keep(const KeptPart& earlier) const { return keptOf(earlier, members(*this)); }

void AwizoForm::putBack(const Kept& kept) { putBackInto(members(*this), kept); }

}  // namespace awizo
