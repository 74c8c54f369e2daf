#pragma once

#include <optional>
#include <string>

#include "assistants/package_plan.h"
#include "desk/number_offer.h"
#include "platform/forms/button.h"
#include "platform/forms/drop_down_list.h"
#include "platform/forms/form.h"
#include "platform/forms/label.h"
#include "platform/forms/text_field.h"

namespace awizo {

/// Asks what several new packages shall be like.
class PackagesDialog : public Form {
 public:
  /// `numbers`: null where the firm has none.
  PackagesDialog(const Editor& editor, NumberOffer* numbers);

  TextField txtCount;
  DropDownList cboType;
  TextField txtDescription;
  DropDownList cboParent;  ///< its first row is none
  TextField txtWeight, txtLength, txtWidth, txtHeight;
  TextField txtPlace;
  Label lblExample;  ///< the first and the last description
  Label lblNumbers;  ///< whether there are numbers enough
  Label lblRefusal;
  Button btnAdd, btnClose;

  /// Shows the dialog; nothing where the user leaves it. What was typed stays for the next time,
  /// but for the count, the parent and the delivery place. A description that nobody typed follows
  /// the type.
  std::optional<PackagePlan> ask();

 private:
  void offerParents();
  void offerPlace();
  void chooseType(int row);
  void offerDescription();
  PackagePlan typedPlan() const;
  void tell();
  void btnAdd_Click();

  const Editor& editor_;
  NumberOffer* numbers_;
  std::string offeredDescription_;
  bool isAccepted_ = false;
};

}  // namespace awizo
