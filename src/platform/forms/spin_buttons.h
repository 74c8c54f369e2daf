#pragma once

#include "platform/forms/text_field.h"

namespace awizo {

/// Spin buttons bound to a text field: a press moves the field's whole number within the limits.
/// They take no focus of their own.
class SpinButtons : public Control {
  template <class Self>
  static auto members(Self& self) {
    return std::tuple_cat(common(self), std::tie(self.min_, self.max_, self.value_));
  }

 public:
  SpinButtons(Form& form, std::string name, TextField& field)
      : Control(form, std::move(name), ControlKind::spinButtons), field_(field) {}

  int min() const { return min_; }
  int max() const { return max_; }
  /// Limits of the whole number that the buttons count up and down. Setting one changes no text.
  void setMin(int min);
  void setMax(int max);

  /// Presses up (positive) or down (negative): the field's leading whole number, or the number of
  /// the last press if it holds none, moves by that much, is held within the limits, and becomes
  /// the field's text.
  void userSpin(int by);

  KeptPart keep(const KeptPart& earlier) const override;
  void putBack(const Kept& kept) override;

 private:
  TextField& field_;
  int min_ = 0;
  int max_ = 100;
  int value_ = 0;
};

}  // namespace awizo
