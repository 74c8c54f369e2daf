#pragma once

#include <functional>
#include <string_view>

#include "platform/forms/control.h"

namespace awizo {

enum class Alignment { left, centre, right };

/// A one-line text field.
class TextField : public Control {
  template <class Self>
  static auto members(Self& self) {
    return std::tuple_cat(common(self), std::tie(self.tag, self.text_, self.caret_));
  }

 public:
  /// `limit`: most characters that the field takes, 0 for no limit.
  TextField(Form& form, std::string name, std::string_view caption = "", int limit = 0,
            Alignment alignment = Alignment::left)
      : Control(form, std::move(name), ControlKind::textField),
        caption_(caption),
        limit_(limit),
        alignment_(alignment) {}

  /// The caption beside the field.
  const std::string& caption() const { return caption_; }
  const std::string& text() const { return text_; }
  /// By code: a longer text is cut to the limit; raises Change if the text differs, and then puts
  /// the caret at the start.
  void setText(std::string_view text);
  int limit() const { return limit_; }
  Alignment alignment() const { return alignment_; }
  /// Place of the caret, in characters; past the end means at the end. Before the start is error
  /// 380.
  int caret() const { return caret_; }
  void setCaret(int caret);
  /// A mark that the form's designer set; "Mandatory" for a required field.
  std::string tag;

  Event onChange;
  std::function<void(std::int16_t code, bool shift)> onKeyDown;
  /// May change the character code; 0 swallows the key.
  std::function<void(std::int16_t& code)> onKeyPress;

  /// The user puts the focus here and replaces the whole text: one change. Line breaks and other
  /// control characters don't enter the one-line field.
  void userType(std::string_view text);

  KeptPart keep(const KeptPart& earlier) const override;
  void putBack(const Kept& kept) override;

 private:
  /// The user presses a key in the field (it takes the focus if it hasn't it): KeyDown, then, for
  /// a key that stands for a character (Enter included), KeyPress.
  void pressKey(std::int16_t code, bool shift) override;

  std::string_view withinLimit(std::string_view text) const;
  void assign(std::string_view text, int caret);

  std::string caption_;
  int limit_;
  Alignment alignment_;
  std::string text_;
  int caret_ = 0;
};

}  // namespace awizo
