#include "packagedialog/dlg_szczegoly.h"

#include "linedialog/tidy_number.h"
#include "packagedialog/package_types.h"
#include "packagedialog/package_validation.h"
#include "platform/forms/report_errors.h"
#include "platform/narrow.h"
#include "platform/text.h"

namespace awizo {

DlgSzczegoly::DlgSzczegoly(Work& work)
    : Form(work.screen(), "DlgSzczegoly"),
      cboxPackageType(*this, "cboxPackageType", "Тип упаковки:", ListStyle::listOnly),
      txtPackageDesc(*this, "txtPackageDesc", "Описание упаковки:"),
      cboxParentPackage(*this, "cboxParentPackage", "Внешняя упаковка:", ListStyle::listOnly),
      lblLevelValue(*this, "lblLevelValue", "", "Уровень:"),
      lbIDValue(*this, "lbIDValue", "", "ID упаковки:"),
      lblIDLowValue(*this, "lblIDLowValue", "", "ID упаковки:"),
      txtPackageWeight(*this, "txtPackageWeight", "Вес упаковки кг (килограммы):"),
      txtPackageLength(*this, "txtPackageLength", "Длина упаковки м (метры):"),
      txtPackageWidth(*this, "txtPackageWidth", "Ширина упаковки м (метры):"),
      txtPackageHeight(*this, "txtPackageHeight", "Высота упаковки м (метры):"),
      txtSerialNumberN(*this, "txtSerialNumberN", "Серийный номер:"),
      cboxILNLokalizacji(*this, "cboxILNLokalizacji", "ILN места доставки:"),
      cboxLokalizacja(*this, "cboxLokalizacja", "Местo доставки:"),
      btnDodaj(*this, "btnDodaj", "&Добавить"),
      btnZamknij(*this, "btnZamknij", "&Назад"),
      work_(work) {
  // Of the two numbers the user sees the lower one.
  lbIDValue.cover = &lblIDLowValue;
  acceptButton = &btnDodaj;
  closeButton = &btnZamknij;
  onClose = [this] { btnZamknij_Click(); };
  onActivate = [this] { Form_Activate(); };
  cboxParentPackage.onClick = [this] { cboxParentPackage_Click(); };
  cboxILNLokalizacji.onChange = [this] { cboxILNLokalizacji_Change(); };
  cboxLokalizacja.onChange = [this] { cboxLokalizacja_Change(); };
  for (TextField* field :
       {&txtPackageWeight, &txtPackageLength, &txtPackageWidth, &txtPackageHeight}) {
    field->onValidate = [this, field] { tidyNumber(work_.conversions, *field, 3); };
  }
  btnDodaj.onClick = [this] { btnDodaj_Click(); };
  btnZamknij.onClick = [this] { btnZamknij_Click(); };
}

DlgSzczegoly& DlgSzczegoly::touch() {
  if (!loaded_) {
    loaded_ = true;
    Form_Load();
  }
  return *this;
}

void DlgSzczegoly::Form_Load() {
  reportErrors(screen(), "Произошла ошибка в Form_Load() (Opakowanie)",
               [&] { cboxPackageType.setRows(packageTypeRows()); });
}

void DlgSzczegoly::Form_Activate() {
  if (LocalizationsFilled) return;
  LocalizationsFilled = true;
  LoadLocalizationDictionary();
}

void DlgSzczegoly::LoadLocalizationDictionary() {
  reportErrors(screen(), "Произошла ошибка в LoadLocalizationDictionary() (Opak)", [&] {
    const SessionState& session = work_.session;
    DebugLog& log = work_.session.log;
    cboxLokalizacja.setStyle(ListStyle::freeTyping);
    log.trace("LoadLocalizationDictionary: xml_loc_loaded = ",
              session.LocalizationsLoaded ? "True" : "False");
    if (!session.LocalizationsLoaded) return;
    log.trace("Form_Load start przetwarzania slownika lokalizacji");
    const XmlNode root = session.LocalizationsDom->root();
    const XmlNode catalogue =
        root ? root.selectSingle("document-content/Document-LocalizationsCatalog") : XmlNode{};
    if (catalogue) offerLocalizations(catalogue.selectSingle("localizations").children());
    log.trace("Form_Load przetworzono slownik lokalizacji");
  });
}

void DlgSzczegoly::offerLocalizations(const std::vector<XmlNode>& entries) {
  if (entries.size() > 1) cboxLokalizacja.setStyle(ListStyle::matchRequired);
  Sorter sorter(screen(), work_.conversions);
  const auto read = std::make_shared<LocalizationDictionary>();
  localizations_ = read;
  read->read(entries, sorter);
  for (const std::string& number : read->numberRows()) cboxLokalizacja.addRow(number);
  for (const std::string& iln : read->ilnRows()) cboxILNLokalizacji.addRow(iln);
}

void DlgSzczegoly::PreparePackages(bool editMode) {
  DebugLog& log = work_.session.log;
  log.trace("P1");
  log.trace("cboxParentPackage.ListCount = ", cboxParentPackage.count());
  const std::vector<std::string>& descriptions = work_.session.ParentDescriptions;
  cboxParentPackage.clear();
  for (std::size_t i = 0; i + 1 < descriptions.size(); ++i) {
    cboxParentPackage.addRow(descriptions[i]);
  }
  log.trace("P2");
  if (editMode) {
    cboxParentPackage.setEnabled(false);
  } else if (cboxParentPackage.count() == 0) {
    cboxParentPackage.setEnabled(false);
    lblLevelValue.setCaption("1");
  } else {
    cboxParentPackage.setEnabled(true);
    lblLevelValue.setCaption("");
  }
  log.trace("P3");
}

void DlgSzczegoly::cboxParentPackage_Click() {
  const int index = cboxParentPackage.index();
  work_.session.log.trace("cboxParentPackage_Click: index = ", index);
  const auto place = static_cast<std::size_t>(index);
  if (index < 0 || place >= work_.session.ParentLevels.size()) {
    throw errors::subscriptOutOfRange();
  }
  lblLevelValue.setCaption(std::to_string(narrow16(work_.session.ParentLevels[place] + 1)));
  ParentSerial = work_.session.ParentSerials[place];
}

bool DlgSzczegoly::IsKnownSerial(std::string_view text) const {
  return isKnown(work_.session.ParentSerials, text);
}

bool DlgSzczegoly::IsKnownDescription(std::string_view text) const {
  return isKnown(work_.session.ParentDescriptions, text);
}

/// The last element belongs to no package.
bool DlgSzczegoly::isKnown(const std::vector<std::string>& entries, std::string_view text) const {
  const Locale& locale = work_.platform.locale;
  const std::string upper = locale.upper(text);
  for (std::size_t i = 0; i + 1 < entries.size(); ++i) {
    if (locale.upper(entries[i]) == upper) return true;
  }
  return false;
}

void DlgSzczegoly::cboxILNLokalizacji_Change() {
  cboxLokalizacja.setIndex(cboxILNLokalizacji.index());
}

void DlgSzczegoly::cboxLokalizacja_Change() {
  work_.session.log.trace("cboxLokalizacja_Change start");
  cboxILNLokalizacji.setIndex(cboxLokalizacja.index());
  work_.session.log.trace("cboxLokalizacja_Change koniec");
}

void DlgSzczegoly::btnDodaj_Click() {
  if (!Walidacja()) return;
  DialogResult = 1;
  hide();
}

void DlgSzczegoly::btnZamknij_Click() {
  DialogResult = 0;
  hide();
}

bool DlgSzczegoly::Walidacja() { return awizo::Walidacja(work_, *this); }

bool DlgSzczegoly::CheckMandatory(std::string_view caption, TextField& field) {
  if (!work_.platform.locale.sameIgnoringCase(field.tag, "Mandatory") || !field.text().empty()) {
    return true;
  }
  screen().showCritical("XXX '" + replaceAll(caption, ":", "") + "'", "VIRD");
  field.setFocus();
  return false;
}

KeptPart DlgSzczegoly::keep(const KeptPart& earlier) const {
  return keptOf(earlier, members(*this));
}

void DlgSzczegoly::putBack(const Kept& kept) { putBackInto(members(*this), kept); }

}  // namespace awizo
