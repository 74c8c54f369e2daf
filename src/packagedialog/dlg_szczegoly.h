#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "packagedialog/localization_dictionary.h"
#include "platform/forms/button.h"
#include "platform/forms/drop_down_list.h"
#include "platform/forms/form.h"
#include "platform/forms/label.h"
#include "platform/forms/text_field.h"
#include "session/record/work.h"

namespace awizo {

/// The modal dialog of one package. It holds no document data: the main form fills it before it
/// opens and reads its fields after it closed.
class DlgSzczegoly : public Form {
  template <class Self>
  static auto members(Self& self) {
    return std::tuple_cat(common(self),
                          std::tie(self.DialogResult, self.ParentSerial, self.AddMode,
                                   self.LocalizationsFilled, self.localizations_, self.loaded_));
  }

 public:
  explicit DlgSzczegoly(Work& work);

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

  /// Runs Form_Load at the first call.
  DlgSzczegoly& touch();

  /// Fills the list of parents from the session's packages.
  void PreparePackages(bool editMode);
  /// Case is ignored.
  bool IsKnownSerial(std::string_view text) const;
  bool IsKnownDescription(std::string_view text) const;
  /// Whether the package may be accepted; shows the user the first fault.
  bool Walidacja();
  /// Fills the two delivery lists from the session's catalogue.
  void LoadLocalizationDictionary();
  const LocalizationDictionary& localizations() const { return *localizations_; }
  /// For code that has set an ILN: shows its place too.
  void cboxILNLokalizacji_Change_PublicWrapper() { cboxILNLokalizacji_Change(); }
  /// A required field by its tag "Mandatory"; no rule of the dialog uses it.
  bool CheckMandatory(std::string_view caption, TextField& field);

  KeptPart keep(const KeptPart& earlier) const override;
  void putBack(const Kept& kept) override;

 private:
  void Form_Load();
  void Form_Activate();
  void cboxParentPackage_Click();
  void cboxILNLokalizacji_Change();
  void cboxLokalizacja_Change();
  void btnDodaj_Click();
  void btnZamknij_Click();
  void offerLocalizations(const std::vector<XmlNode>& entries);
  bool isKnown(const std::vector<std::string>& entries, std::string_view text) const;

  Work& work_;
  /// Shared with what was kept of the dialog.
  std::shared_ptr<const LocalizationDictionary> localizations_ =
      std::make_shared<LocalizationDictionary>();
  bool loaded_ = false;
};

}  // namespace awizo
