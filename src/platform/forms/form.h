#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/forms/control.h"
#include "platform/forms/screen.h"

namespace awizo {

class Button;

/// A form: the controls on it, which of them has the focus, whether it is shown.
class Form {
 protected:
  /// The members that every form keeps.
  template <class Self>
  static auto common(Self& self) {
    return std::tie(self.caption_, self.enabled_, self.focus_);
  }

 public:
  Form(Screen& screen, std::string name);
  virtual ~Form();
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;

  const std::string& name() const { return name_; }
  Screen& screen() const { return screen_; }
  /// In tab order, which is the order in which they were made.
  const std::vector<Control*>& controls() const { return controls_; }
  /// The control of that name, or null.
  Control* find(std::string_view name) const;

  const std::string& caption() const { return caption_; }
  void setCaption(std::string_view caption);
  bool enabled() const { return enabled_; }
  void setEnabled(bool enabled);
  bool shown() const { return shown_; }
  /// Whether a user's input reaches the form now.
  bool takesInput() const { return shown_ && enabled_ && screen_.takesInput(*this); }

  /// Shows the form over all others and returns when it has hidden; nothing happens where it is
  /// shown already. Activate comes first. Then the focus is with the control that had it last, for
  /// which nothing is raised, else it goes to the first that can take it.
  void showModal();
  /// Shows the main form and returns at once.
  void showMain();
  /// Hides the form; the focus stays with its control for the next showing, and nothing is
  /// validated.
  void hide();

  Control* focus() const { return focus_; }

  /// Raised at every showing, after the form is on the screen.
  Event onActivate;
  /// What the window frame's close does; without it, the closing button is pressed.
  Event onClose;
  /// The user closes the form by its window frame. Refused when the form doesn't take input or
  /// has no way of closing.
  void userClose();

  /// Throws Refused, with a text for people, when no input reaches the form now.
  void requireInput() const;

  /// The user presses a key in the form: it is that of the control with the focus. Without one,
  /// since it was hidden or disabled, Enter and Escape still press the form's buttons, and Tab
  /// leads to the first control that can take the focus. Returns whether the key meant something.
  bool userKey(std::int16_t code, bool shift = false);

  /// Buttons that Enter and Escape press; null for none.
  Button* acceptButton = nullptr;
  Button* closeButton = nullptr;

  /// Notified when caption (content), enabled, shown (visible) or focus change.
  Observers<const Change&> observers;

  /// Runs an event procedure, if there is one, as Screen::runEvent does.
  void raise(const Event& event);

  // What the form holds besides its controls, as Control has it; whether it is shown isn't part of
  // it. A form with members of its own keeps these too.
  virtual KeptPart keep(const KeptPart& earlier) const;
  virtual void putBack(const Kept& kept);
  void tellAll();

 private:
  friend class Control;
  friend class Screen;

  enum class FocusCause { user, code };
  void add(Control& control) { controls_.push_back(&control); }
  void moveFocus(Control& control, FocusCause cause);
  /// What the user must pass before the focus leaves its control.
  bool validateFocus();
  void leave(Control& control);
  /// Does what a key means to the whole form; returns whether it meant something.
  bool pressKey(const Control& control, std::int16_t code, bool shift);
  void tabFrom(const Control& control, bool backwards);
  void activate();
  void changed(Aspect aspect) { observers.tell({aspect}); }

  Screen& screen_;
  std::string name_;
  std::vector<Control*> controls_;
  std::string caption_;
  bool enabled_ = true;
  bool shown_ = false;
  Control* focus_ = nullptr;
};

}  // namespace awizo
