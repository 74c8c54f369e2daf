#include "session/start_up.h"

#include <initializer_list>

#include "platform/forms/report_errors.h"
#include "session/identity.h"
#include "session/local_folder.h"
#include "session/on_line_start.h"
#include "session/record/countries.h"
#include "session/record/header_panel.h"
#include "session/record/off_line_path.h"
#include "session/record/properties.h"
#include "tables/totals.h"

namespace awizo {
namespace {

/// Prices and tax rates can't be entered in this configuration; they stay in the data.
void hidePrices(AwizoForm& form, DlgDodaj& dialog) {
  for (Control* control : std::initializer_list<Control*>{
           &dialog.lblCenaNetto, &dialog.txtCenaNetto, &dialog.Label7, &dialog.txtAmount,
           &dialog.Label8, &dialog.cboxStawkaVAT, &form.lblStawkaVAT, &form.comboStawkaVAT,
           &form.btnUzupelnij, &form.btnNadpisz}) {
    control->setVisible(false);
  }
}

void prepareFields(Editor& editor) {
  AwizoForm& form = editor.form;
  form.txtDespatchAdviceTime.setTime(std::nullopt);
  form.txtEstimatedDeliveryTime.setTime(std::nullopt);
  // First today, so that the empty picker opens on today.
  form.dpDataZam.setDate(editor.platform.clock.today());
  form.dpDataZam.setDate(std::nullopt);
  form.lblNiepelnaWagaKom.setCaption("");
  form.comboStawkaVAT.setRows({"", "0", "10", "18"});
  form.comboCountry.setRows(fixedCountryEntries());
}

void openLog(Editor& editor) {
  const std::optional<std::int16_t> level = debugLevel(editor);
  // The value itself decides: 0,6 is below 1, though a level would be rounded up to it.
  if (!level || editor.conversions.toDouble(editor.form.DebugLevel) < 1) return;
  SessionState& session = editor.session;
  session.log.OpenDebugLog(debugLogFile(session.OffLinePathValue, editor.form.PartnerName), *level);
}

Refusal start(Editor& editor) {
  SessionState& session = editor.session;
  session.OffLinePathValue = keptOffLinePath(editor.platform.settings);
  if (session.OffLinePathValue.empty()) return "Нет определённого пути доступа к запасам.";
  openLog(editor);
  if (const Refusal refusal = readIdentity(editor); !refusal.empty()) return refusal;
  if (isOffLine(editor.form.OnLine) || !HasHostDocument(editor.platform.page)) return "";
  return startOnLine(editor);
}

}  // namespace

void UserControl_Show(Editor& editor, DlgDodaj& lineDialog) {
  reportErrors(editor.screen(), "Произошла ошибка в UserControl_Show()", [&] {
    editor.session.SendQuestionAsked = false;
    editor.form.LastPackageSerial = 1;
    hidePrices(editor.form, lineDialog);
    prepareFields(editor);
    if (const Refusal refusal = start(editor); !refusal.empty()) {
      editor.screen().showCritical(refusal, "VIRD");
      editor.form.setEnabled(false);
      editor.form.deeds.tell({Deed::Kind::refused, std::string(refusal)});
      return;
    }
    SetHeader(editor);
    PoprawGrdSuma(editor);
  });
}

std::optional<std::int16_t> debugLevel(const Editor& editor) {
  try {
    return editor.conversions.toInt16(editor.form.DebugLevel);
  } catch (const RunTimeError&) {
    return std::nullopt;
  }
}

}  // namespace awizo
