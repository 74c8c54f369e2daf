#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "formats/advice_draft.h"
#include "formats/file_dialog.h"
#include "linedialog/dlg_dodaj.h"
#include "linedialog/dlg_iso_codes.h"
#include "linedialog/dlgdodaj_pule.h"
#include "packagedialog/dlg_szczegoly.h"
#include "session/array_remove_item.h"
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

  Screen screen;  ///< on the surroundings' face of it
  AwizoForm form;
  Editor editor;

  // The dialogs, hidden until they are shown; they keep their fields from one use to the next.
  DlgIsoCodes dlgIsoCodes;
  DlgdodajPule dlgdodajPule;
  DlgDodaj dlgDodaj;
  DlgSzczegoly dlgSzczegoly;
  DlgWczytajZapisz dlgWczytajZapisz;

  /// The main form, then the dialogs.
  std::vector<Form*> forms();

  // Properties. "Off" means off-line, any other text on-line. A change is reported to the host.
  const std::string& OnLine() const { return form.OnLine; }
  void setOnLine(std::string_view value);
  /// The empty text where the property holds no 16-bit number.
  std::string DebugLevel() const;
  /// Changes no open log.
  void setDebugLevel(std::string_view value);
  /// By one of the names in properties.h.
  std::string property(std::string_view name) const;
  /// False, and nothing done, where a host can't set the property.
  bool setProperty(std::string_view name, std::string_view value);
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

  /// Whether the document holds what was neither saved nor sent: the user's changes, or an order
  /// that the service has handed out for good. A host asks before it lets such a document go.
  bool isDocumentChanged() const;
  /// What was saved or sent isn't this document any more.
  void forgetKeptDocument() { keptDocument_.reset(); }

  // Methods that the system itself doesn't call and a host may. Where an error is named, it reaches
  // the host as RunTimeError; the others raise none.

  /// Weight of all lines in kilograms, a number with the locale's separator. Lines without a weight
  /// add nothing, and the form then warns. Error 6 for a weight too large.
  std::string MyCalculateWeight();
  /// Weight of one line in kilograms, rounded to 3 decimals: its quantity times the kilograms of
  /// one unit. Commas and points in both texts become the locale's separator. A text that is no
  /// number and a unit's weight not above 0 count as 0.
  double MyCalculatePartWeight(std::string& quantity, std::string& weight);
  /// Symbol of a unit by its name, case ignored ("PCE"); an unknown name is returned unchanged.
  std::string JednostkiMiaryNazwaToSymbol(std::string_view name) const;
  /// Takes the element at `index` out of the array. Error 13 for a value that is no array, error 9
  /// outside its bounds and for the last element left; an array that can't shrink raises its own.
  static void ArrayRemoveItem(HostValue& array, std::int32_t index);

  // A package reference string is "serial@description@level@quantity" for each package of a line,
  // joined by "$"; the quantity is a screen number with 3 decimals.
  /// The assignments in the line dialog's table, as such a string; empty if there are none.
  std::string GridToString();
  /// Refills the line dialog's table. At a reference without a serial it stops without a message.
  void StringToGrid(std::string_view text);
  /// The string without the references of these serials. After an error, which is shown, the empty
  /// text.
  std::string RemoveOldPackRef(std::string_view text, const std::vector<std::string>& delSerials);
  /// Sum of its quantities, with 3 decimals. After an error, such as a quantity that is no number,
  /// which is shown, the empty text.
  std::string GetPackedQuantity(std::string_view text);

  // Flat index of a cell, row x columns + column, both counted from 0: of the lines, the packages,
  // the totals, and the line dialog's table. Error 6 beyond 32767.
  std::int16_t IndexGrdPozycje(std::int16_t row, std::int16_t col) const;
  std::int16_t IndexGrdOpak(std::int16_t row, std::int16_t col) const;
  std::int16_t IndexGrdSuma(std::int16_t row, std::int16_t col) const;
  std::int16_t IndexGrdPozycjeDlgDodaj(std::int16_t row, std::int16_t col);

 private:
  enum class Start { none, runs, failed, done };

  void keepDocument();
  void connectEvents();
  void connectLineButtons();
  void connectPackageButtons();
  void connectDocumentButtons();
  void connectTables();
  void connectTableEditor();
  void showOnLine();

  Start start_ = Start::none;
  /// The document as it was last kept; none where it never was and would be lost.
  std::optional<AdviceDraft> keptDocument_;
};

}  // namespace awizo
