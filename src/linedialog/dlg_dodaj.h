#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "linedialog/dlg_iso_codes.h"
#include "linedialog/dlgdodaj_pule.h"
#include "linedialog/line_calculations.h"
#include "linedialog/line_packages.h"
#include "linedialog/product_choice.h"
#include "linedialog/product_dictionary.h"
#include "linedialog/sort.h"
#include "platform/forms/button.h"
#include "platform/forms/drop_down_list.h"
#include "platform/forms/form.h"
#include "platform/forms/label.h"
#include "platform/forms/pickers.h"
#include "platform/forms/table.h"
#include "platform/forms/text_field.h"
#include "session/record/work.h"

namespace awizo {

/// The modal dialog of one line. It is hidden and never unloaded, so its fields keep their last
/// values. The main form fills it, shows it, and reads it when DlgResult is 1.
class DlgDodaj : public Form {
  template <class Self>
  static auto members(Self& self) {
    return std::tuple_cat(
        common(self),
        std::tie(self.DlgResult, self.LinePartnerName, self.LinePeriod, self.LinePeriodFormat,
                 self.LineFromOrder, self.LineOrderNumber, self.LineWeight,
                 self.choice_.ProductChangeSource, self.products_, self.loaded_));
  }

 public:
  DlgDodaj(Work& work, DlgIsoCodes& isoCodes, DlgdodajPule& quantityDialog);

  // Product. The lists lie over the text fields; without a catalogue they are hidden.
  Label lblPozycjaTow;
  Label lblNazwaProd;
  DropDownList cboxNazwaProd;
  TextField txtNazwaProdWart;
  Label lblEANProd;
  DropDownList cboxEANProd;
  TextField txtlEANProdWart;
  Label lblKodKup;
  DropDownList cboxKodAPP;
  TextField txtKodKup;
  Label lblKodSprzed;
  DropDownList cboxKodSprzed;
  TextField txtKodSprzed;
  Label lblJednostkaMiary;
  DropDownList cboxJednostkaMiary;

  // Quantities and amounts.
  Label lblIloscZam;
  TextField txtIloscZam;
  Label lblIloscPotw;
  TextField txtIloscPotw;
  Label lblCenaNetto;
  TextField txtCenaNetto;
  Label Label7;
  TextField txtAmount;
  Label Label8;
  DropDownList cboxStawkaVAT;
  Label Label10;
  DropDownList cboxKodVAT;

  // Dates, country, customs number.
  Label Label5;
  DatePicker dtProdDate;
  Label lblExpiryDate;
  DatePicker dtExpiryDate;
  Label lblContryOfOryginCode;
  DropDownList comboCountry;
  PictureButton btnISOcodes;
  Label Label9;
  TextField txtCDN1;
  DatePicker dpCDN2;
  TextField txtCDN3;
  TextField txtCDN4;

  // Packages of the line.
  Label Label4;
  Label lblPackedQuantity, lblPackedQuantityValue;
  Table grdPozycje;
  Table grdPozycjeN;  ///< on the form; nothing reads or writes it
  Button Command1, Command2, Command3;

  Button btnDodaj, btnZamknij;

  // Members that the main form reads and writes.
  std::int16_t DlgResult = 0;  ///< 1 accepted, 0 not
  std::string LinePartnerName;
  std::string LinePeriod, LinePeriodFormat;
  bool LineFromOrder = false;
  std::string LineOrderNumber;
  std::string LineWeight;

  /// Runs Form_Load at the first call after allowLoading().
  DlgDodaj& touch();
  /// The start-up has fetched the catalogue: the next touch may load the dialog.
  void allowLoading() { mayLoad_ = true; }
  bool loaded() const { return loaded_; }

  // Rows of the fixed lists and their codes. Index -1 means the list's own text.
  std::string symbolJednostkiMiary(std::int16_t index) const;
  std::int16_t indexJednostkiMiary(std::string_view code) const;
  /// For any unknown index of a category "E".
  std::string symbolKodVAT(std::int16_t index) const;
  std::int16_t indexKodVAT(std::string_view code) const;
  std::string symbolStawkaVAT(std::int16_t index) const;
  std::int16_t indexStawkaVAT(std::string_view rate) const;

  /// Whether the line may be accepted; shows the user the first fault.
  bool Walidacja();
  /// Keeps category "E" and a rate above 0 apart: 0 after the category changed, 1 after the rate
  /// changed.
  void CheckVAT(std::int16_t which) { awizo::CheckVAT(which, cboxKodVAT, cboxStawkaVAT); }
  /// Net amount, screen number with 2 decimals; empty where quantity or price is no number.
  std::string MyCalculateAmount() const;
  /// "yyyy-mm-dd" or empty.
  std::string MyCalculateExpiryDate() const;
  /// "yyyy-mm-dd"; the empty text leaves the picker without a value but opening on today.
  void showExpiryDate(const std::string& isoDate);
  /// Fills the line's fields from a row of the EAN list.
  void setFieldsValues(int index) { choice_.setFieldsValues(index); }

  /// What can still be put into packages; negative when too much lies in them.
  double GetMaxQuantity() { return packages_.GetMaxQuantity(); }
  void UpdatePackedQuantity() { packages_.UpdatePackedQuantity(); }
  void SetButtons() { packages_.SetButtons(); }
  /// Flat index of the table of packages; error 6 beyond 16 bits.
  std::int16_t IndexGrdPozycje(std::int16_t row, std::int16_t column) const;
  void StringToGrid(std::string_view text);
  std::string GridToString() const;

  Sorter& sorter() { return sorter_; }
  const ProductDictionary& dictionary() const { return *products_; }
  ProductChoice& productChoice() { return choice_; }

  KeptPart keep(const KeptPart& earlier) const override;
  void putBack(const Kept& kept) override;

 private:
  void wireFields();
  void wireLists();
  void wireButtons();

  void Form_Load();
  void fillFixedLists();
  void readCatalogue();

  void btnDodaj_Click();
  void btnZamknij_Click();

  Work& work_;
  DlgIsoCodes& isoCodes_;
  Sorter sorter_;
  /// Shared with what was kept of the dialog.
  std::shared_ptr<const ProductDictionary> products_ = std::make_shared<ProductDictionary>();
  ProductChoice choice_;
  LinePackages packages_;
  bool mayLoad_ = false;
  bool loaded_ = false;
};

}  // namespace awizo
