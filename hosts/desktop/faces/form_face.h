#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>
#include <functional>
#include <map>
#include <string_view>

#include "hosts/desktop/faces/face.h"
#include "platform/at_exit.h"
#include "platform/forms/form.h"

class QLabel;

namespace awizo {
class Button;
class Table;
}  // namespace awizo

namespace awizo::desktop {

class ButtonFace;
class TableFace;

/// Scrolls what holds the widget until it is seen. Under the mouse nothing moves: what is pressed
/// there is seen.
void bringIntoSight(QWidget& widget);

/// The faces of one form in one window, by the controls' names, and the focus between them: a
/// user's move goes to the model first, and Qt's focus follows the model, wherever it goes.
class FormFace : public QObject {
 public:
  /// Makes a face for every control of the form, as children of `window`; a layout takes them from
  /// there. The form outlives the faces, unless release() is called before it goes.
  FormFace(Form& form, QWidget& window);
  ~FormFace() override;

  Form& form() const { return form_; }
  QWidget& window() const { return window_; }
  Face& face(const Control& control) const;
  ButtonFace& button(const Button& control) const;
  TableFace& table(const Table& control) const;
  QLabel& label(const Control& control) const;
  QWidget* widget(const Control& control) const { return face(control).widget(); }
  /// The face of the control of that name, or null.
  Face* find(std::string_view name) const;
  /// The form's life ends: the faces stay on the screen and touch it no more.
  void release();

  /// Shows every control as its model is, and the form's own state.
  void showAll();
  /// Puts Qt's focus where the model's is.
  void followFocus();
  /// Called when the model's form changes caption or is shown or hidden.
  std::function<void(const Change&)> onChange;
  /// Asked before the user presses a button; while the answer is no, nothing happens. May be empty.
  std::function<bool(const Button&)> mayPress;
  /// Called after a control was shown, hidden, enabled or disabled.
  Observers<Face&> onStateShown;

  // What faces use.

  /// The face that shows the model's focus, or null: a covered control's focus shows at its cover.
  Face* focusedFace() const;
  /// Runs a user's action; answers whether the model took it. Within code that moves Qt's own
  /// state no action begins.
  bool act(const std::function<void()>& action);
  /// Whether the host lets the user press the button.
  bool lets(const Button& button) const { return !mayPress || mayPress(button); }
  /// The user moves the focus to the face, which may refuse; answers whether it is there now.
  bool moveFocusTo(Face& face);
  /// Qt's focus has come to the face's widget.
  void focusCame(Face& face, Qt::FocusReason reason);
  void stateShown(Face& face);

  /// While the returned object lives, what happens to Qt's widgets comes from the models, not from
  /// the user.
  auto following() {
    ++following_;
    return AtExit([this] { --following_; });
  }
  /// While the returned object lives, the focus is moved by the keyboard: a field's text is
  /// selected.
  auto byKeyboard() {
    reason_ = Qt::TabFocusReason;
    return AtExit([this] { reason_ = Qt::OtherFocusReason; });
  }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void showChange(const Change& change);
  bool pressKeyWithoutFocus(QKeyEvent& key);

  Form& form_;
  QWidget& window_;
  std::map<const Control*, QPointer<Face>> faces_;
  Qt::FocusReason reason_ = Qt::OtherFocusReason;
  int observation_ = 0;
  int following_ = 0;
  bool alive_ = true;
};

}  // namespace awizo::desktop
