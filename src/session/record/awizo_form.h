#pragma once

#include <cstdint>
#include <string>

#include "platform/clock.h"
#include "platform/forms/button.h"
#include "platform/forms/drop_down_list.h"
#include "platform/forms/form.h"
#include "platform/forms/label.h"
#include "platform/forms/pickers.h"
#include "platform/forms/table.h"
#include "platform/forms/text_field.h"
#include "session/record/deed.h"

namespace awizo {

/// The control's main form: its visible parts, and the members of the control instance.
class AwizoForm : public Form {
  template <class Self>
  static auto members(Self& self) {
    return std::tuple_cat(
        common(self),
        std::tie(self.HeaderBuyerILN, self.HeaderBuyerName, self.HeaderSellerILN,
                 self.HeaderSellerName, self.ValidLineCount, self.GridRowHeight,
                 self.LastSentNumber, self.LastPackageSerial, self.OrderAnswer, self.DeliveryILN,
                 self.BadColumnName, self.WeightComplete, self.OnLine, self.DebugLevel,
                 self.PartnerName, self.PartnerILN, self.PartnerURL));
  }

 public:
  AwizoForm(Screen& screen, const Clock& clock);

  // Header.
  Frame frmDaneNaglowka;
  TextField txtNrAwiza;
  DatePicker txtDataAwiza;
  TimePicker txtDespatchAdviceTime;
  TextField txtNrZam;
  DatePicker dpDataZam;
  DatePicker txtEstimatedDeliveryDate;
  TimePicker txtEstimatedDeliveryTime;
  TextField txtCodeByBuyer;
  DropDownList cboxPackageDescription;
  TextField txtGoodsIdentity;
  Label lblILNSprzedWart, lblNameSprzedWart;
  Label lblILNKupWart, lblNameKupWart;
  Label lblILNMiejscaDostValue;
  Label lblNazwaMiejscaDostWart;
  Label lblAdresMiejscaDostawy, lblNazwaMiejscaDostawy;
  Label lblCurrencyWart;
  Label lblOnLineStatus;
  Label lblVersion;
  Label lblNiepelnaWagaKom;

  // Lines.
  Frame frmPozycje;
  Table grdPozycje;
  TextField txtEdycja;
  Label lblStawkaVAT;
  DropDownList comboStawkaVAT;
  Button btnUzupelnij, btnNadpisz;
  DropDownList comboCountry;
  PictureButton Image2;
  Button btnUzupelnij2, btnNadpisz2;
  Button btnDodaj, btnEdytuj, btnUsun;

  // Packages.
  Frame Frame1;
  Table grdOpakowania;
  Button btnDodajOpak, btnEdytujOpak, btnUsunOpak;

  // Totals.
  Frame frmPodsumowanie;
  Table grdSuma;
  TextField txtEdycjaSuma;

  /// The document's ways in and out.
  PictureButton btnPrzeslij, btnZapisz, btnWczytaj;

  // Members of the control.
  std::string PartnersUrl, UploadUrl, OrderDataUrl;  ///< full addresses
  std::string HeaderBuyerILN, HeaderBuyerName, HeaderSellerILN, HeaderSellerName;
  std::int16_t ValidLineCount = 0;     ///< lines that pass the line check
  std::int32_t GridRowHeight = 0;      ///< twips
  std::string LastSentNumber;          ///< number of the document that the service accepted last
  std::int16_t LastPackageSerial = 0;  ///< last package serial issued; serial 1 has no row
  bool OrderAnswer = false;            ///< the document answers an order
  std::string DeliveryILN;
  std::string BadColumnName;  ///< column that the line check rejected last
  bool WeightComplete = false;

  /// Called when something has become of the document.
  Observers<const Deed&> deeds;

  /// The host's properties as they came; empty for one that the host doesn't have.
  std::string OnLine, DebugLevel, PartnerName, PartnerILN, PartnerURL;

  KeptPart keep(const KeptPart& earlier) const override;
  void putBack(const Kept& kept) override;
};

}  // namespace awizo
