#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "formats/file_dialog.h"
#include "linedialog/dlg_dodaj.h"
#include "linedialog/dlg_iso_codes.h"
#include "linedialog/dlgdodaj_pule.h"
#include "packagedialog/dlg_szczegoly.h"
#include "session/record/awizo_form.h"
#include "session/record/editor.h"
#include "tables/array_remove_item.h"

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

  // Methods that the system itself doesn't call and a host may. Errors that leave them reach the
  // host.
  std::string MyCalculateWeight();
  double MyCalculatePartWeight(std::string& quantity, std::string& weight);
  std::string JednostkiMiaryNazwaToSymbol(std::string_view name) const;
  static void ArrayRemoveItem(HostValue& array, std::int32_t index);
  /// The assignments in the line dialog's table, as a package reference string.
  std::string GridToString();
  void StringToGrid(std::string_view text);
  std::string RemoveOldPackRef(std::string_view text, const std::vector<std::string>& delSerials);
  std::string GetPackedQuantity(std::string_view text);
  std::int16_t IndexGrdPozycje(std::int16_t row, std::int16_t col) const;
  std::int16_t IndexGrdOpak(std::int16_t row, std::int16_t col) const;
  std::int16_t IndexGrdSuma(std::int16_t row, std::int16_t col) const;
  /// Flat index in the line dialog's table, as the three above in the document's.
  std::int16_t IndexGrdPozycjeDlgDodaj(std::int16_t row, std::int16_t col);

 private:
  void connectEvents();
  void connectLineButtons();
  void connectPackageButtons();
  void connectDocumentButtons();
  void connectTables();
  void connectTableEditor();
  void showOnLine();
};

}  // namespace awizo
