#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "formats/file_dialog.h"
#include "linedialog/dlg_dodaj.h"
#include "linedialog/dlg_iso_codes.h"
#include "linedialog/dlgdodaj_pule.h"
#include "packagedialog/dlg_szczegoly.h"
#include "session/record/awizo_form.h"
#include "session/record/editor.h"

namespace awizo {

/// The control: the main form with its tables, the dialogs over it, and what its host calls. The
/// host makes one, calls UserControl_Initialize and UserControl_ReadProperties, then
/// UserControl_Show, and at the end UserControl_WriteProperties and UserControl_Terminate; in
/// between the user acts on the forms. The surroundings and the record outlive the control.
class AwizoWysylki {
 public:
  AwizoWysylki(const Platform& platform, SessionState& session);
  AwizoWysylki(const AwizoWysylki&) = delete;
  AwizoWysylki& operator=(const AwizoWysylki&) = delete;

  AwizoForm form;
  Editor editor;

  // The dialogs, hidden until they are shown; they keep their fields from one use to the next.
  DlgIsoCodes dlgIsoCodes;
  DlgdodajPule dlgdodajPule;
  DlgDodaj dlgDodaj;
  DlgSzczegoly dlgSzczegoly;
  DlgWczytajZapisz dlgWczytajZapisz;

  // Properties. "Off" means off-line, any other text on-line. A change is reported to the host.
  const std::string& OnLine() const { return form.OnLine; }
  void setOnLine(std::string_view value);
  /// The empty text where the property holds no 16-bit number.
  std::string DebugLevel() const;
  /// Changes no open log.
  void setDebugLevel(std::string_view value);
  /// Whether the control takes input; a failed start-up leaves it disabled for good.
  bool Enabled() const { return form.enabled(); }

  // Events that the host raises. None of them raises an error.
  /// Tables, headings and the locale's separator; ends the program when that fails.
  void UserControl_Initialize();
  void UserControl_ReadProperties();
  /// Puts the form on the screen and starts the work. Once.
  void UserControl_Show();
  void UserControl_WriteProperties();
  void UserControl_Paint();
  /// Keeps the local folder for the next run. An unsaved document is lost.
  void UserControl_Terminate();

 private:
  void connectEvents();
  void showOnLine();
};

}  // namespace awizo
