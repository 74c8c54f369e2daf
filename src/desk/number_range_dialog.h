#pragma once

#include "numbers/given_numbers.h"
#include "platform/forms/button.h"
#include "platform/forms/form.h"
#include "platform/forms/label.h"
#include "platform/forms/text_field.h"

namespace awizo {

/// Sets the firm's range of package numbers, and hands out parts of it to other places.
class NumberRangeDialog : public Form {
 public:
  NumberRangeDialog(Screen& screen, GivenNumbers& numbers);

  TextField txtExtension, txtPrefix, txtFirst, txtLast, txtNext;
  Label lblExample;  ///< the next number, with its check digit
  Label lblLeft;
  Label lblDoubt;  ///< what is wrong with the fields, or doubtful
  Label lblPlace;  ///< who takes numbers of this range, where that isn't plain
  TextField txtPartCount, txtPartPlace;
  Button btnHandOut;
  Button btnSave, btnClose;

  /// `sellerILN`: the user's firm, "" where it isn't known.
  void show(std::string sellerILN);

 private:
  void fill();
  std::string fieldTexts() const;
  bool isNextChanged() const { return txtNext.text() != filledNext_; }
  std::optional<NumberRange> typedRange(std::string& refusal) const;
  void tell();
  /// What may be wrong with the range; empty where nothing is.
  std::string doubt(const NumberRange& range) const;
  void btnSave_Click();
  void btnHandOut_Click();

  GivenNumbers& numbers_;
  std::string sellerILN_;
  std::string filled_;  ///< the fields' texts, as nobody has changed them yet
  std::string filledNext_;
  std::optional<NumberRange> stored_;  ///< as it was when the fields were filled
  std::vector<HandedPart> handed_;     ///< parts that other places have
};

}  // namespace awizo
