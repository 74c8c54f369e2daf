#pragma once

#include <cstdint>

#include "foundation/conversions.h"
#include "platform/forms/button.h"
#include "platform/forms/drop_down_list.h"
#include "platform/forms/form.h"
#include "platform/forms/label.h"
#include "platform/forms/spin_buttons.h"
#include "platform/forms/text_field.h"

namespace awizo {

/// The small modal dialog that asks which package takes how much of a line.
class DlgdodajPule : public Form {
  template <class Self>
  static auto members(Self& self) {
    return std::tuple_cat(common(self), std::tie(self.DlgResult));
  }

 public:
  DlgdodajPule(Screen& screen, const Conversions& conversions);

  Label Label2;
  DropDownList cboxPackages;
  Label Label1;
  TextField txtQuantity;
  SpinButtons UpDown1;  ///< Min and Max: the limits of the quantity, whole numbers
  Button btnDodaj, btnZamknij;

  std::int16_t DlgResult = 0;  ///< 1 accepted, 0 closed

  /// Whether a package and a quantity are given; shows the user what is missing.
  bool Walidacja();

  KeptPart keep(const KeptPart& earlier) const override;
  void putBack(const Kept& kept) override;

 private:
  void btnDodaj_Click();
  void btnZamknij_Click();
  void txtQuantity_Change();
  void showRange();

  const Conversions& conversions_;
};

}  // namespace awizo
