#include "session/awizo_wysylki.h"

#include "session/record/off_line_path.h"
#include "session/record/properties.h"
#include "session/set_up.h"
#include "session/start_up.h"

namespace awizo {
namespace {

/// Runs one statement of a procedure that ignores errors.
template <class Statement>
void ignoreErrors(Statement&& statement) {
  try {
    statement();
  } catch (const RunTimeError&) {
    // The field stays as it was, and the next statement runs.
  }
}

}  // namespace

AwizoWysylki::AwizoWysylki(const Platform& platform, SessionState& session)
    : screen(platform.screenFace),
      form(screen, platform.clock),
      editor(platform, screen, session, form),
      dlgIsoCodes(screen, session),
      dlgdodajPule(screen, editor.conversions),
      dlgDodaj(editor, dlgIsoCodes, dlgdodajPule),
      dlgSzczegoly(editor),
      dlgWczytajZapisz(screen, platform.files, platform.settings, session) {
  connectEvents();
  form.deeds.add([this](const Deed& deed) {
    if (deed.keepsDocument()) keepDocument();
  });
}

std::vector<Form*> AwizoWysylki::forms() {
  return {&form, &dlgDodaj, &dlgdodajPule, &dlgSzczegoly, &dlgIsoCodes, &dlgWczytajZapisz};
}

void AwizoWysylki::setOnLine(std::string_view value) {
  form.OnLine = value;
  editor.platform.host.propertyChanged(properties::onLine);
  showOnLine();
}

std::string AwizoWysylki::DebugLevel() const {
  return debugLevel(editor) ? form.DebugLevel : std::string();
}

void AwizoWysylki::setDebugLevel(std::string_view value) {
  form.DebugLevel = value;
  editor.platform.host.propertyChanged(properties::debugLevel);
}

std::string AwizoWysylki::property(std::string_view name) const {
  if (name == properties::debugLevel) return DebugLevel();
  if (name == properties::partnerName) return form.PartnerName;
  if (name == properties::partnerIln) return form.PartnerILN;
  return name == properties::partnerUrl ? form.PartnerURL : OnLine();
}

bool AwizoWysylki::setProperty(std::string_view name, std::string_view value) {
  if (name == properties::onLine) {
    setOnLine(value);
  } else if (name == properties::debugLevel) {
    setDebugLevel(value);
  } else {
    return false;
  }
  return true;
}

void AwizoWysylki::UserControl_Initialize() { setUpControl(editor); }

void AwizoWysylki::UserControl_ReadProperties() {
  PropertyBag& bag = editor.platform.bag;
  ignoreErrors([&] { form.OnLine = bag.read(properties::onLine); });
  ignoreErrors([&] { showOnLine(); });
  ignoreErrors([&] { form.DebugLevel = bag.read(properties::debugLevel); });
  ignoreErrors([&] { form.PartnerName = bag.read(properties::partnerName); });
  ignoreErrors([&] { dlgDodaj.LinePartnerName = form.PartnerName; });
  ignoreErrors([&] { form.PartnerILN = bag.read(properties::partnerIln); });
  ignoreErrors([&] { editor.session.BuyerILN = form.PartnerILN; });
  ignoreErrors([&] { form.PartnerURL = bag.read(properties::partnerUrl); });
}

void AwizoWysylki::UserControl_Show() {
  start_ = Start::runs;
  form.showMain();
  editor.screen().during("", [this] { awizo::UserControl_Show(editor, dlgDodaj); });
  // Only now is there a catalogue that the line dialog can read when it loads.
  dlgDodaj.allowLoading();
  start_ = form.enabled() ? Start::done : Start::failed;
  // An order is handed out once: until it is answered, it would be lost.
  if (!form.OrderAnswer) keepDocument();
}

void AwizoWysylki::keepDocument() { keptDocument_ = draftOf(editor); }

bool AwizoWysylki::isDocumentChanged() const {
  // A start that failed left nothing to work on.
  if (start_ == Start::none || start_ == Start::failed) return false;
  if (!keptDocument_) return editor.session.LineCount > 0;
  return draftOf(editor) != *keptDocument_;
}

void AwizoWysylki::UserControl_WriteProperties() {
  PropertyBag& bag = editor.platform.bag;
  ignoreErrors([&] { bag.write(properties::onLine, form.OnLine); });
  ignoreErrors([&] { bag.write(properties::debugLevel, form.DebugLevel); });
}

void AwizoWysylki::UserControl_Paint() {
  form.grdPozycje.refresh();
  form.grdSuma.refresh();
}

void AwizoWysylki::UserControl_Terminate() {
  form.raise(
      [this] { keepOffLinePath(editor.platform.settings, editor.session.OffLinePathValue); });
}

void AwizoWysylki::showOnLine() {
  const bool offLine = isOffLine(form.OnLine);
  form.lblOnLineStatus.setCaption(offLine ? "Off-Line" : "On-Line");
  form.btnPrzeslij.setVisible(!offLine);
}

}  // namespace awizo
