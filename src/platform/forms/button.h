#pragma once

#include <string_view>

#include "platform/forms/control.h"

namespace awizo {

/// A button with a caption ("&" before the mnemonic letter). Takes the focus when clicked.
class Button : public Control {
  template <class Self>
  static auto members(Self& self) {
    return std::tuple_cat(common(self), std::tie(self.caption_));
  }

 public:
  Button(Form& form, std::string name, std::string_view caption = "")
      : Button(form, std::move(name), ControlKind::button, caption) {}

  const std::string& caption() const { return caption_; }
  void setCaption(std::string_view caption);

  Event onClick;
  Event onDoubleClick;
  /// On a button whose double click is an event of its own, the double click raises no Click.
  bool doubleClickAlone = false;

  /// Takes the focus (a picture button doesn't), then raises Click.
  void userClick();
  /// Raises Click without moving the focus, as Enter, Escape and menu keys do.
  void userPress();
  /// Click first, then the double click, unless `doubleClickAlone`.
  void userDoubleClick();

  KeptPart keep(const KeptPart& earlier) const override;
  void putBack(const Kept& kept) override;

 protected:
  Button(Form& form, std::string name, ControlKind kind, std::string_view caption)
      : Control(form, std::move(name), kind), caption_(caption) {}

 private:
  /// Enter and the space bar press the button that has the focus.
  void pressKey(std::int16_t code, bool shift) override;
  /// Returns whether the click goes on.
  bool takeClick();

  std::string caption_;
};

/// A picture that serves as a button: it takes no focus. The caption is its tip.
class PictureButton : public Button {
 public:
  PictureButton(Form& form, std::string name, std::string_view tip = "")
      : Button(form, std::move(name), ControlKind::pictureButton, tip) {}
};

}  // namespace awizo
