#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "platform/forms/button.h"
#include "platform/forms/drop_down_list.h"
#include "platform/forms/form.h"
#include "platform/forms/label.h"
#include "platform/forms/text_field.h"
#include "session/record/editor.h"

namespace awizo {

/// The modal dialog of one package. It holds no document data: the main form fills it before it
/// opens and reads its fields after it closed.
class DlgSzczegoly : public Form {
 public:
  explicit DlgSzczegoly(Editor& editor);

  DropDownList cboxPackageType;
  TextField txtPackageDesc;
  DropDownList cboxParentPackage;
  Label lblLevelValue;
  Label lbIDValue, lblIDLowValue;
  TextField txtPackageWeight;  ///< kilograms
  TextField txtPackageLength;  ///< metres, as the next two
  TextField txtPackageWidth;
  TextField txtPackageHeight;
  TextField txtSerialNumberN;
  DropDownList cboxILNLokalizacji;
  DropDownList cboxLokalizacja;
  Button btnDodaj, btnZamknij;

  std::int16_t DialogResult = 0;     ///< 1 confirmed, 0 closed
  std::string ParentSerial;          ///< serial of the chosen parent, "" for a top package
  bool AddMode = false;              ///< adding, not changing
  bool LocalizationsFilled = false;  ///< the two delivery lists have been filled

  // The delivery places, in the catalogue's order, and the order in which the lists show them.
  std::vector<std::string> LocalizationNumbers, LocalizationIlns;
  std::vector<std::int32_t> LocalizationOrder;

  /// Runs Form_Load at the first call.
  DlgSzczegoly& touch();

  /// Fills the list of parents from the session's packages.
  void PreparePackages(bool editMode);
  /// Case is ignored.
  bool IsKnownSerial(std::string_view text) const;
  bool IsKnownDescription(std::string_view text) const;
  /// Whether the package may be accepted; tells the user the first fault.
  bool Walidacja();
  void LoadLocalizationDictionary();
  /// For code that has set an ILN: shows its place too.
  void cboxILNLokalizacji_Change_PublicWrapper() { cboxILNLokalizacji_Change(); }
  /// A required field by its tag "Mandatory"; no rule of the dialog uses it.
  bool CheckMandatory(std::string_view caption, TextField& field);

 private:
  void Form_Load();
  void Form_Activate();
  void cboxParentPackage_Click();
  void cboxILNLokalizacji_Change();
  void cboxLokalizacja_Change();
  void btnDodaj_Click();
  void btnZamknij_Click();
  void measure_Validate(TextField& field);

  bool isKnown(const std::vector<std::string>& entries, std::string_view text) const;
  bool checkTypeAndDescription();
  bool checkDeliveryPlace();
  bool checkMeasures();
  bool checkMeasure(TextField& field, std::string_view message);
  bool checkSerialNumber();
  void readLocalizations(const XmlNode& catalogue);

  Editor& editor_;
  bool loaded_ = false;
};

/// Code of a package type's row: "09", "201", "PK"; the empty text for any other index.
std::string symbolPackageType(std::int16_t index);
/// Row of a package type's code, case ignored; -1 for any other text.
std::int16_t indexPackageType(const Locale& locale, std::string_view code);
/// What is wrong with the serial number of a package, as the dialog tells it; empty where nothing
/// is.
std::string serialNumberRefusal(std::string_view serial);
/// The right last digit of an 18-digit serial shipping container code, from its first 17.
int containerCheckDigit(std::string_view digits);

}  // namespace awizo
