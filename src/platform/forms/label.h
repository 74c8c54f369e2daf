#pragma once

#include <string_view>

#include "platform/forms/control.h"

namespace awizo {

/// A text that the user can't change. Value labels are set by code, others keep their caption.
class Label : public Control {
  template <class Self>
  static auto members(Self& self) {
    return std::tuple_cat(common(self), std::tie(self.caption_));
  }

 public:
  /// `heading`: the fixed words before a value label.
  Label(Form& form, std::string name, std::string_view caption = "", std::string_view heading = "")
      : Control(form, std::move(name), ControlKind::label), caption_(caption), heading_(heading) {}

  const std::string& caption() const { return caption_; }
  const std::string& heading() const { return heading_; }
  void setCaption(std::string_view caption);

  KeptPart keep(const KeptPart& earlier) const override;
  void putBack(const Kept& kept) override;

 private:
  std::string caption_;
  std::string heading_;
};

/// A frame with a heading around other controls.
class Frame : public Control {
 public:
  Frame(Form& form, std::string name, std::string_view caption = "")
      : Control(form, std::move(name), ControlKind::frame), caption_(caption) {}

  const std::string& caption() const { return caption_; }

 private:
  std::string caption_;
};

}  // namespace awizo
