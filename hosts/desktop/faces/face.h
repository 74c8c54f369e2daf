#pragma once

#include <QObject>
#include <QWidget>
#include <optional>
#include <utility>

#include "hosts/desktop/faces/text.h"
#include "platform/forms/control.h"

class QKeyEvent;
class QMouseEvent;

namespace awizo::desktop {

class FormFace;

/// What is on the screen for one control of a form. It shows what the model holds and hands the
/// user's actions on; it keeps nothing of its own and decides nothing. It belongs to its widget.
class Face : public QObject {
 public:
  Face(FormFace& form, Control& control, QWidget* widget);
  ~Face() override;

  Control& control() const { return control_; }
  /// The widget that is put into the layout.
  QWidget* widget() const { return widget_; }
  /// The widget that takes the keys; mostly the same.
  virtual QWidget* focusWidget() const { return widget_; }
  /// Hands on what is typed and not yet taken, as the focus is about to leave.
  virtual void finishTyping() {}

  /// Shows the model whole.
  void showAll();
  /// The control's life ends: the face is notified no more.
  void release();

 protected:
  FormFace& form() const { return form_; }

  /// Runs a user's action. What the model refuses changes nothing; the widget then shows again
  /// what the model holds.
  void act(const std::function<void()>& action);
  /// Hands a key on that isn't typed text; answers whether it is no more the widget's. What is
  /// typed comes as a whole text from the widget itself.
  virtual bool pressKey(QKeyEvent& key);
  void sendKey(const QKeyEvent& key);
  bool hasFocus() const;

  /// Shows text, rows or whatever the kind of control holds.
  virtual void showContent() = 0;
  virtual void showChange(const Change& change);
  void showState();

  /// Watches the mouse on a widget that isn't the face's own: a part of it that gets the clicks.
  void watch(QWidget* part) { part->installEventFilter(this); }
  /// The mouse goes down and the focus is here; answers whether the press is no more the widget's.
  virtual bool pressMouse(QMouseEvent&) { return false; }
  /// Whether the wheel is the widget's; a field that it would change unseen ignores it.
  virtual bool takesWheel() const { return true; }
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  FormFace& form_;
  Control& control_;
  QWidget* widget_;
  std::optional<int> observation_;
};

}  // namespace awizo::desktop
