#include "packagedialog/dlg_szczegoly.h"

#include <array>

#include "platform/forms/report_errors.h"
#include "platform/narrow.h"

namespace awizo {
namespace {

struct PackageType {
  std::string_view name;
  std::string_view code;
};

constexpr std::array<PackageType, 3> packageTypes{
    {{"Паллета", "09"}, {"Коробка", "201"}, {"Возвратная тара", "PK"}}};

}  // namespace

DlgSzczegoly::DlgSzczegoly(Editor& editor)
    : Form(editor.screen(), "DlgSzczegoly"),
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
      editor_(editor) {
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
    field->onValidate = [this, field] { measure_Validate(*field); };
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
  reportErrors(screen(), "Произошла ошибка в Form_Load() (Opakowanie)", [&] {
    for (const PackageType& type : packageTypes) cboxPackageType.addRow(type.name);
  });
}

void DlgSzczegoly::Form_Activate() {
  if (LocalizationsFilled) return;
  LocalizationsFilled = true;
  LoadLocalizationDictionary();
}

void DlgSzczegoly::PreparePackages(bool editMode) {
  DebugLog& log = editor_.session.log;
  log.WriteDebugLine("P1");
  log.WriteDebugLine("cboxParentPackage.ListCount = " + std::to_string(cboxParentPackage.count()));
  const std::vector<std::string>& descriptions = editor_.session.ParentDescriptions;
  cboxParentPackage.clear();
  for (std::size_t i = 0; i + 1 < descriptions.size(); ++i) {
    cboxParentPackage.addRow(descriptions[i]);
  }
  log.WriteDebugLine("P2");
  cboxParentPackage.clearSelection();
  if (editMode) {
    cboxParentPackage.setEnabled(false);
  } else if (cboxParentPackage.count() == 0) {
    cboxParentPackage.setEnabled(false);
    lblLevelValue.setCaption("1");
  } else {
    cboxParentPackage.setEnabled(true);
    lblLevelValue.setCaption("");
  }
  log.WriteDebugLine("P3");
}

void DlgSzczegoly::cboxParentPackage_Click() {
  const int index = cboxParentPackage.index();
  editor_.session.log.WriteDebugLine("cboxParentPackage_Click: index = " + std::to_string(index));
  const auto place = static_cast<std::size_t>(index);
  if (index < 0 || place >= editor_.session.ParentLevels.size()) {
    throw errors::subscriptOutOfRange();
  }
  lblLevelValue.setCaption(std::to_string(narrow16(editor_.session.ParentLevels[place] + 1)));
  ParentSerial = editor_.session.ParentSerials[place];
}

bool DlgSzczegoly::IsKnownSerial(std::string_view text) const {
  return isKnown(editor_.session.ParentSerials, text);
}

bool DlgSzczegoly::IsKnownDescription(std::string_view text) const {
  return isKnown(editor_.session.ParentDescriptions, text);
}

// The last element stands for no package.
bool DlgSzczegoly::isKnown(const std::vector<std::string>& entries, std::string_view text) const {
  const Locale& locale = editor_.platform.locale;
  const std::string upper = locale.upper(text);
  for (std::size_t i = 0; i + 1 < entries.size(); ++i) {
    if (entries[i] == text || locale.upper(entries[i]) == upper) return true;
  }
  return false;
}

void DlgSzczegoly::cboxILNLokalizacji_Change() {
  cboxLokalizacja.setIndex(cboxILNLokalizacji.index());
}

void DlgSzczegoly::cboxLokalizacja_Change() {
  editor_.session.log.WriteDebugLine("cboxLokalizacja_Change start");
  cboxILNLokalizacji.setIndex(cboxLokalizacja.index());
  editor_.session.log.WriteDebugLine("cboxLokalizacja_Change koniec");
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

std::string symbolPackageType(std::int16_t index) {
  if (index < 0 || static_cast<std::size_t>(index) >= packageTypes.size()) return {};
  return std::string(packageTypes[static_cast<std::size_t>(index)].code);
}

std::int16_t indexPackageType(const Locale& locale, std::string_view code) {
  for (std::size_t i = 0; i < packageTypes.size(); ++i) {
    if (locale.sameIgnoringCase(packageTypes[i].code, code)) return static_cast<std::int16_t>(i);
  }
  return -1;
}

}  // namespace awizo
