#pragma once

#include <QAbstractButton>
#include <QTimer>

#include "hosts/desktop/faces/face.h"
#include "platform/forms/button.h"

namespace awizo::desktop {

/// A button or a picture button; the latter takes no focus, and its caption is its tip.
class ButtonFace : public Face {
 public:
  ButtonFace(FormFace& form, Button& button, QWidget* parent);

  /// `icon`: name of one of the program's icons. `tip`: what the button does, where its caption
  /// doesn't say it.
  void setIcon(const QString& icon, const QString& tip = {});
  void setTip(const QString& tip);
  /// Shows words next to a picture button's picture; its tip stays.
  void setWords(const QString& words);
  /// Runs before the user presses the button in whatever way. May be empty.
  std::function<void()> beforePress;

 protected:
  void showContent() override;
  bool pressKey(QKeyEvent& key) override;
  bool pressMouse(QMouseEvent& mouse) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void click();
  void press(const std::function<void()>& press);

  Button& button_;
  QAbstractButton* widget_;
  QString tip_;
  QString words_;
  /// Runs while a click may still become the first half of a double click.
  QTimer firstClick_;
};

}  // namespace awizo::desktop
