#include "linedialog/dlg_dodaj.h"

#include "linedialog/country_list.h"
#include "linedialog/fixed_lists.h"
#include "linedialog/line_validation.h"
#include "platform/forms/report_errors.h"
#include "platform/text.h"
#include "session/record/countries.h"
#include "tables/columns/columns.h"
#include "tables/flat_index.h"
#include "tables/package_references.h"

namespace awizo {
namespace {

constexpr std::string_view formLoadTitle = "Произошла ошибка в Form_Load() (Dodaj)";

}  // namespace

DlgDodaj::DlgDodaj(Work& work, DlgIsoCodes& isoCodes, DlgdodajPule& quantityDialog)
    : Form(work.screen(), "DlgDodaj"),
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
      dtProdDate(*this, "dtProdDate", work.platform.clock.today(), NoValue::refused,
                 "Дата изготовления:", DateForm::longDate),
      lblExpiryDate(*this, "lblExpiryDate", "Срок годности:"),
      dtExpiryDate(*this, "dtExpiryDate", work.platform.clock.today(), NoValue::allowed,
                   "Срок годности:", DateForm::longDate),
      lblContryOfOryginCode(*this, "lblContryOfOryginCode", "Код страны производителя:"),
      comboCountry(*this, "comboCountry", "Код страны производителя:"),
      btnISOcodes(*this, "btnISOcodes", "ISO коды стран."),
      Label9(*this, "Label9", "ГТД:"),
      txtCDN1(*this, "txtCDN1", "ГТД:", 8),
      dpCDN2(*this, "dpCDN2", work.platform.clock.today(), NoValue::refused),
      txtCDN3(*this, "txtCDN3", "", 7),
      txtCDN4(*this, "txtCDN4", "", 3),
      Label4(*this, "Label4", "Секция упаковки"),
      lblPackedQuantity(*this, "lblPackedQuantity", "Упакованное количество:"),
      lblPackedQuantityValue(*this, "lblPackedQuantityValue", "", "Упакованное количество:"),
      grdPozycje(*this, "grdPozycje", static_cast<int>(packageOfLineColumns.size())),
      grdPozycjeN(*this, "grdPozycjeN", grdPozycje.columns()),
      Command1(*this, "Command1", "+"),
      Command2(*this, "Command2", "-"),
      Command3(*this, "Command3", "•"),
      btnDodaj(*this, "btnDodaj", "&Добавить"),
      btnZamknij(*this, "btnZamknij", "&Назад"),
      work_(work),
      isoCodes_(isoCodes),
      sorter_(work.screen(), work.conversions),
      choice_(work, *this),
      packages_(work, *this, quantityDialog) {
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
  txtIloscZam.onValidate = [this] { txtIloscZam_Validate(work_.conversions, *this); };
  txtIloscPotw.onValidate = [this] { txtIloscPotw_Validate(work_.conversions, *this); };
  txtCenaNetto.onValidate = [this] { txtCenaNetto_Validate(work_.conversions, *this); };
  txtAmount.onValidate = [this] { txtAmount_Validate(work_.conversions, *this); };
  txtCDN1.onValidate = [this] { txtCDN1_Validate(work_.conversions, *this); };
  txtCDN3.onValidate = [this] { txtCDN3_Validate(work_.conversions, *this); };
}

void DlgDodaj::wireLists() {
  txtNazwaProdWart.cover = &cboxNazwaProd;
  txtlEANProdWart.cover = &cboxEANProd;
  txtKodKup.cover = &cboxKodAPP;
  txtKodSprzed.cover = &cboxKodSprzed;
  grdPozycjeN.cover = &grdPozycje;
  cboxEANProd.onChange = [this] { choice_.cboxEANProd_Change(); };
  cboxKodAPP.onChange = [this] { choice_.cboxKodAPP_Change(); };
  cboxKodSprzed.onChange = [this] { choice_.cboxKodSprzed_Change(); };
  cboxNazwaProd.onChange = [this] { choice_.cboxNazwaProd_Change(); };
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
  btnISOcodes.onClick = [this] {
    pickCountry(comboCountry, isoCodes_, work_.session, work_.platform.locale);
  };
  // What is picked after a double click takes effect only through the next plain click.
  btnISOcodes.doubleClickAlone = true;
  btnISOcodes.onDoubleClick = [this] { isoCodes_.touch().showModal(); };
  Command1.onClick = [this] { packages_.Command1_Click(); };
  Command2.onClick = [this] { packages_.Command2_Click(); };
  Command3.onClick = [this] { packages_.Command3_Click(); };
}

DlgDodaj& DlgDodaj::touch() {
  if (mayLoad_ && !loaded_) {
    loaded_ = true;
    Form_Load();
  }
  return *this;
}

/// A failure in one part is shown to the user and doesn't stop the rest.
void DlgDodaj::Form_Load() {
  DebugLog& log = work_.session.log;
  work_.session.IsoCheckOk = true;
  choice_.ProductChangeSource = 0;
  log.trace("Form_Load start");
  const Cursor earlier = screen().setCursor(work_.session.WaitCursor);
  reportErrors(screen(), formLoadTitle, [&] { fillFixedLists(); });
  reportErrors(screen(), formLoadTitle, [&] { packages_.setUpTable(); });
  log.trace("Form_Load utworzono obiekty MSXML2 ");
  if (work_.session.ProductCatalogLoaded) {
    reportErrors(screen(), formLoadTitle, [&] { readCatalogue(); });
  } else {
    for (DropDownList* list : {&cboxNazwaProd, &cboxEANProd, &cboxKodAPP, &cboxKodSprzed}) {
      list->setVisible(false);
    }
  }
  screen().setCursor(earlier);
  log.trace("Form_Load zmiana kursora na poczatkowy");
}

void DlgDodaj::fillFixedLists() {
  cboxJednostkaMiary.setRows(unitRows());
  cboxKodVAT.setRows(taxCategoryRows());
  cboxStawkaVAT.setRows(taxRateRows());
  comboCountry.setRows(fixedCountryEntries());
}

void DlgDodaj::readCatalogue() {
  DebugLog& log = work_.session.log;
  log.trace("Form_Load start przetwarzania slownika produktow");
  const XmlNode catalogue =
      work_.session.ProductCatalogDom->node().selectSingle("Document-ProductCatalogue");
  if (catalogue) {
    const auto products = std::make_shared<ProductDictionary>();
    products_ = products;
    products->read(catalogue, work_.conversions, sorter_, screen(), formLoadTitle);
    cboxNazwaProd.setRows(products->rowsByName());
    cboxEANProd.setRows(products->rowsByEAN());
    cboxKodSprzed.setRows(products->rowsBySupplierCode());
    cboxKodAPP.setRows(products->rowsByBuyerCode());
  }
  log.trace("Form_Load przetworzono slownik produktow");
}

std::string DlgDodaj::symbolJednostkiMiary(std::int16_t index) const {
  return index == -1 ? cboxJednostkaMiary.text() : unitCode(index);
}

std::int16_t DlgDodaj::indexJednostkiMiary(std::string_view code) const {
  return unitIndex(work_.platform.locale, code);
}

std::string DlgDodaj::symbolKodVAT(std::int16_t index) const {
  return index == -1 ? cboxKodVAT.text() : taxCategoryCode(index);
}

std::int16_t DlgDodaj::indexKodVAT(std::string_view code) const {
  return taxCategoryIndex(work_.platform.locale, code);
}

std::string DlgDodaj::symbolStawkaVAT(std::int16_t index) const {
  return index == -1 ? cboxStawkaVAT.text() : taxRateCode(index);
}

std::int16_t DlgDodaj::indexStawkaVAT(std::string_view rate) const { return taxRateIndex(rate); }

bool DlgDodaj::Walidacja() { return awizo::Walidacja(work_, *this, isoCodes_); }

std::string DlgDodaj::MyCalculateAmount() const {
  return awizo::MyCalculateAmount(work_.conversions, txtIloscPotw.text(), txtCenaNetto.text());
}

std::string DlgDodaj::MyCalculateExpiryDate() const {
  return work_.conversions.AddPeriodToDate(dtProdDate.date().value(), LinePeriod, LinePeriodFormat);
}

void DlgDodaj::showExpiryDate(const std::string& isoDate) {
  if (!isoDate.empty()) {
    dtExpiryDate.setDate(work_.conversions.toDate(isoDate));
    return;
  }
  dtExpiryDate.setDate(work_.platform.clock.today());
  dtExpiryDate.setDate(std::nullopt);
}

std::int16_t DlgDodaj::IndexGrdPozycje(std::int16_t row, std::int16_t column) const {
  return flatIndex(grdPozycje, row, column);
}

// An error ends these two without a word, with what they have done so far.

void DlgDodaj::StringToGrid(std::string_view text) { awizo::StringToGrid(grdPozycje, text); }

std::string DlgDodaj::GridToString() const { return awizo::GridToString(grdPozycje); }

void DlgDodaj::btnDodaj_Click() {
  if (!Walidacja()) return;
  DlgResult = 1;
  if (countCharacters(comboCountry.text()) == 2) {
    addCountryOfCode(comboCountry, isoCodes_, work_.platform.locale);
  }
  if (cboxNazwaProd.visible()) cboxNazwaProd.setFocus();
  if (Command3.enabled() || Command1.enabled()) packages_.tellWhatIsUnpacked();
  hide();
}

/// Nothing that was typed is undone: the main form just doesn't read it.
void DlgDodaj::btnZamknij_Click() {
  DlgResult = 0;
  if (cboxNazwaProd.visible()) cboxNazwaProd.setFocus();
  hide();
}

KeptPart DlgDodaj::keep(const KeptPart& earlier) const { return keptOf(earlier, members(*this)); }

void DlgDodaj::putBack(const Kept& kept) { putBackInto(members(*this), kept); }

}  // namespace awizo
