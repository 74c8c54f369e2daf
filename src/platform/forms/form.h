#pragma once

#include <string>
#include <vector>

#include "platform/forms/control.h"
#include "platform/forms/screen.h"

namespace awizo {

/// A form: the controls on it, which of them has the focus, whether it is shown.
class Form {
 public:
  Form(Screen& screen, std::string name);
  virtual ~Form() = default;
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

  /// Shows the form over all others and returns when it has hidden. The focus goes to the control
  /// that had it last, else to the first that can take it.
  void showModal();
  /// Shows the main form and returns at once.
  void showMain();
  /// Hides the form; the focus stays with its control for the next showing, and nothing is
  /// validated.
  void hide();

  Control* focus() const { return focus_; }

  /// Raised at every showing, after the form stands on the screen.
  Event onActivate;
  /// What the window frame's close does: the form's own closing procedure.
  Event onClose;
  /// The user closes the form by its window frame. Refused when the form doesn't take input.
  void userClose();

  /// Buttons that Enter and Escape press; null for none.
  Control* acceptButton = nullptr;
  Control* closeButton = nullptr;

  /// Told when caption, enabled, shown or focus change. At most one; a host sets it.
  std::function<void(const Change&)> observer;

  /// Runs an event procedure; an error that leaves it shows the box "VIRD".
  void raise(const Event& event);

 private:
  friend class Control;

  enum class FocusCause { user, code };
  void add(Control& control) { controls_.push_back(&control); }
  void moveFocus(Control& control, FocusCause cause);
  void leave(Control& control);
  void activate();
  void changed(Aspect aspect) {
    if (observer) observer({aspect});
  }

  Screen& screen_;
  std::string name_;
  std::vector<Control*> controls_;
  std::string caption_;
  bool enabled_ = true;
  bool shown_ = false;
  Control* focus_ = nullptr;
};

}  // namespace awizo
