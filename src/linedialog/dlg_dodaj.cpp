#include "linedialog/dlg_dodaj.h"

#include "platform/text.h"
#include "session/record/countries.h"

namespace awizo {

DlgDodaj::DlgDodaj(Editor& editor, DlgIsoCodes& isoCodes, DlgdodajPule& quantityDialog)
    : Form(editor.screen(), "DlgDodaj"),
      lblPozycjaTow(*this, "lblPozycjaTow", "Номер товарной позиции"),
      lblNazwaProd(*this, "lblNazwaProd", "Наименование товара:"),
      cboxNazwaProd(*this, "cboxNazwaProd", "Наименование товара:"),
      txtNazwaProdWart(*this, "txtNazwaProdWart", "Наименование товара:", 70),
      lblEANProd(*this, "lblEANProd", "Штрих-код товара:"),
      cboxEANProd(*this, "cboxEANProd", "Штрих-код товара:"),
      txtlEANProdWart(*this, "txtlEANProdWart", "Штрих-код товара:", 14),
      lblKodKup(*this, "lblKodKup", "Код товара у покупателя:"),
      cboxKodAPP(*this, "cboxKodAPP", "Код товара у покупателя:"),
      txtKodKup(*this, "txtKodKup", "Код товара у покупателя:", 40),
      lblKodSprzed(*this, "lblKodSprzed", "Код товара у продавца:"),
      cboxKodSprzed(*this, "cboxKodSprzed", "Код товара у продавца:"),
      txtKodSprzed(*this, "txtKodSprzed", "Код товара у продавца:", 40),
      lblJednostkaMiary(*this, "lblJednostkaMiary", "Единица измерения:"),
      cboxJednostkaMiary(*this, "cboxJednostkaMiary", "Единица измерения:"),
      lblIloscZam(*this, "lblIloscZam", "Количество заказа:"),
      txtIloscZam(*this, "txtIloscZam", "Количество заказа:", 9, Alignment::right),
      lblIloscPotw(*this, "lblIloscPotw", "Количество отгружено:"),
      txtIloscPotw(*this, "txtIloscPotw", "Количество отгружено:", 9, Alignment::right),
      lblCenaNetto(*this, "lblCenaNetto", "Цена за единицу без НДС:"),
      txtCenaNetto(*this, "txtCenaNetto", "Цена за единицу без НДС:", 16, Alignment::right),
      Label7(*this, "Label7", "Сумма без НДС:"),
      txtAmount(*this, "txtAmount", "Сумма без НДС:", 0, Alignment::right),
      Label8(*this, "Label8", "Ставка НДС в %:"),
      cboxStawkaVAT(*this, "cboxStawkaVAT", "Ставка НДС в %:", ListStyle::listOnly),
      Label10(*this, "Label10", "Код ставки НДС:"),
      cboxKodVAT(*this, "cboxKodVAT", "Код ставки НДС:", ListStyle::listOnly),
      Label5(*this, "Label5", "Дата изготовления:"),
      dtProdDate(*this, "dtProdDate", editor.platform.clock.today(), NoValue::refused,
                 "Дата изготовления:", DateForm::longDate),
      lblExpiryDate(*this, "lblExpiryDate", "Срок годности:"),
      dtExpiryDate(*this, "dtExpiryDate", editor.platform.clock.today(), NoValue::allowed,
                   "Срок годности:", DateForm::longDate),
      lblContryOfOryginCode(*this, "lblContryOfOryginCode", "Код страны производителя:"),
      comboCountry(*this, "comboCountry", "Код страны производителя:"),
      btnISOcodes(*this, "btnISOcodes", "ISO коды стран."),
      Label9(*this, "Label9", "ГТД:"),
      txtCDN1(*this, "txtCDN1", "ГТД:", 8),
      dpCDN2(*this, "dpCDN2", editor.platform.clock.today(), NoValue::refused),
      txtCDN3(*this, "txtCDN3", "", 7),
      txtCDN4(*this, "txtCDN4", "", 3),
      Label4(*this, "Label4", "Секция упаковки"),
      lblPackedQuantity(*this, "lblPackedQuantity", "Упакованное количество:"),
      lblPackedQuantityValue(*this, "lblPackedQuantityValue", "", "Упакованное количество:"),
      grdPozycje(*this, "grdPozycje", 5),
      grdPozycjeN(*this, "grdPozycjeN", 5),
      Command1(*this, "Command1", "+"),
      Command2(*this, "Command2", "-"),
      Command3(*this, "Command3", "•"),
      btnDodaj(*this, "btnDodaj", "&Добавить"),
      btnZamknij(*this, "btnZamknij", "&Назад"),
      editor_(editor),
      isoCodes_(isoCodes),
      quantityDialog_(quantityDialog),
      sorter_(editor.screen(), editor.conversions) {
  acceptButton = &btnDodaj;
  closeButton = &btnZamknij;
  onClose = [this] { btnZamknij_Click(); };
  wireFields();
  wireLists();
  wireButtons();
}

void DlgDodaj::wireFields() {
  txtIloscPotw.onChange = [this] {
    txtAmount.setText(MyCalculateAmount());
    SetButtons();
  };
  txtCenaNetto.onChange = [this] { txtAmount.setText(MyCalculateAmount()); };
  dtProdDate.onChange = [this] { showExpiryDate(MyCalculateExpiryDate()); };
  txtIloscZam.onValidate = [this] { txtIloscZam_Validate(); };
  txtIloscPotw.onValidate = [this] { txtIloscPotw_Validate(); };
  txtCenaNetto.onValidate = [this] { txtCenaNetto_Validate(); };
  txtAmount.onValidate = [this] { txtAmount_Validate(); };
  txtCDN1.onValidate = [this] { txtCDN1_Validate(); };
  txtCDN3.onValidate = [this] { txtCDN3_Validate(); };
}

void DlgDodaj::wireLists() {
  txtNazwaProdWart.cover = &cboxNazwaProd;
  txtlEANProdWart.cover = &cboxEANProd;
  txtKodKup.cover = &cboxKodAPP;
  txtKodSprzed.cover = &cboxKodSprzed;
  grdPozycjeN.cover = &grdPozycje;
  cboxEANProd.onChange = [this] { cboxEANProd_Change(); };
  cboxKodAPP.onChange = [this] { cboxKodAPP_Change(); };
  cboxKodSprzed.onChange = [this] { cboxKodSprzed_Change(); };
  cboxNazwaProd.onChange = [this] { cboxNazwaProd_Change(); };
  cboxKodVAT.onClick = [this] { CheckVAT(0); };
  cboxStawkaVAT.onClick = [this] { CheckVAT(1); };
  for (DropDownList* list : {&cboxJednostkaMiary, &comboCountry}) {
    list->onValidate = [list] {
      if (list->index() < 0) list->setText(std::string(trimmed(list->text())));
    };
  }
}

void DlgDodaj::wireButtons() {
  btnDodaj.onClick = [this] { btnDodaj_Click(); };
  btnZamknij.onClick = [this] { btnZamknij_Click(); };
  btnISOcodes.onClick = [this] { btnISOcodes_Click(); };
  // What is picked after a double click takes effect only through the next plain click.
  btnISOcodes.doubleClickAlone = true;
  btnISOcodes.onDoubleClick = [this] { isoCodes_.touch().showModal(); };
  Command1.onClick = [this] { Command1_Click(); };
  Command2.onClick = [this] { Command2_Click(); };
  Command3.onClick = [this] { Command3_Click(); };
}

DlgDodaj& DlgDodaj::touch() {
  if (mayLoad_ && !loaded_) {
    loaded_ = true;
    Form_Load();
  }
  return *this;
}

void DlgDodaj::btnDodaj_Click() {
  if (!Walidacja()) return;
  DlgResult = 1;
  if (countCharacters(comboCountry.text()) == 2) addCountryOfCode();
  if (cboxNazwaProd.visible()) cboxNazwaProd.setFocus();
  if (Command3.enabled() || Command1.enabled()) tellWhatIsUnpacked();
  hide();
}

// The list grows with the countries used; its own text stays the two letters.
void DlgDodaj::addCountryOfCode() {
  const Locale& locale = editor_.platform.locale;
  const Table& table = isoCodes_.touch().grdISO;
  for (int index = DlgIsoCodes::firstCode; index <= DlgIsoCodes::lastCode; index += 2) {
    if (!locale.sameIgnoringCase(table.cell(index), comboCountry.text())) continue;
    addMissingRow(comboCountry, countryEntry(comboCountry.text(), table.cell(index - 1)), locale);
    return;
  }
}

void DlgDodaj::tellWhatIsUnpacked() {
  const Conversions& conversions = editor_.conversions;
  double packed = 0;
  for (int row = 1; row < grdPozycje.rows(); ++row) {
    const std::string& cell = grdPozycje.cell(row, 4);
    if (cell.empty()) continue;
    packed += conversions.toDouble(conversions.NormalizeDecimal(Conversions::CommaToDot(cell), 2));
  }
  if (conversions.MyDouble(std::string(txtIloscPotw.text())) > packed) {
    screen().messageBox({"Отгруженный товар упакован не полностью", ""});
  }
}

// Nothing that was typed is undone: the main form just doesn't read it.
void DlgDodaj::btnZamknij_Click() {
  DlgResult = 0;
  if (cboxNazwaProd.visible()) cboxNazwaProd.setFocus();
  hide();
}

// A cancelled choice leaves IsoResult, so an earlier one comes back, and none empties the field.
void DlgDodaj::btnISOcodes_Click() {
  const int count = comboCountry.count();
  isoCodes_.touch().showModal();
  const std::string& chosen = editor_.session.IsoResult;
  comboCountry.setText(chosen);
  if (!chosen.empty()) addMissingRow(comboCountry, chosen, editor_.platform.locale);
  if (comboCountry.count() != count) comboCountry.setIndex(comboCountry.count() - 1);
}

void addMissingRow(DropDownList& list, const std::string& entry, const Locale& locale) {
  for (const std::string& row : list.rows()) {
    if (locale.sameIgnoringCase(row, entry)) return;
  }
  list.addRow(entry);
}

}  // namespace awizo
