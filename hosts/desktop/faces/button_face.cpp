#include "hosts/desktop/faces/button_face.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPushButton>
#include <QShortcutEvent>
#include <QToolButton>

#include "hosts/desktop/faces/form_face.h"
#include "hosts/desktop/faces/icons.h"
#include "hosts/desktop/faces/key_codes.h"

namespace awizo::desktop {
namespace {

constexpr int pictureSize = 20;

QAbstractButton* makeButton(const Button& button, QWidget* parent) {
  if (button.isFocusable()) {
    auto* plain = new QPushButton(parent);
    plain->setAutoDefault(false);
    plain->setFocusPolicy(Qt::TabFocus);
    return plain;
  }
  auto* picture = new QToolButton(parent);
  picture->setFocusPolicy(Qt::NoFocus);
  picture->setAutoRaise(true);
  picture->setIconSize({pictureSize, pictureSize});
  return picture;
}

QString withoutMnemonic(QString caption) { return caption.remove('&'); }

}  // namespace

ButtonFace::ButtonFace(FormFace& form, Button& button, QWidget* parent)
    : Face(form, button, makeButton(button, parent)),
      button_(button),
      widget_(static_cast<QAbstractButton*>(widget())) {
  firstClick_.setSingleShot(true);
  connect(&firstClick_, &QTimer::timeout, this, [this] { press([this] { button_.userClick(); }); });
  connect(widget_, &QAbstractButton::clicked, this, &ButtonFace::click);
}

void ButtonFace::setIcon(const QString& icon, const QString& tip) {
  widget_->setIcon(iconNamed(icon));
  setTip(tip);
}

void ButtonFace::setTip(const QString& tip) {
  tip_ = tip;
  showContent();
}

void ButtonFace::setWords(const QString& words) {
  words_ = words;
  if (auto* picture = qobject_cast<QToolButton*>(widget_)) {
    picture->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    picture->setAutoRaise(false);
  }
  showContent();
}

void ButtonFace::showContent() {
  const QString caption = fromText(button_.caption());
  const QString words = tip_.isEmpty() ? withoutMnemonic(caption) : tip_;
  widget_->setAccessibleName(words);
  widget_->setToolTip(words);
  const bool isPicture = !button_.isFocusable();
  if (!isPicture) {
    widget_->setText(caption);
  } else {
    widget_->setText(widget_->icon().isNull() && words_.isEmpty() ? words : words_);
  }
}

void ButtonFace::press(const std::function<void()>& press) {
  if (!form().lets(button_)) return;
  if (beforePress) beforePress();
  act(press);
}

/// Where a double click is an event of its own, a click must wait until it can't become one.
void ButtonFace::click() {
  if (button_.doubleClickAlone) {
    firstClick_.start(QApplication::doubleClickInterval());
  } else {
    press([this] { button_.userClick(); });
  }
}

bool ButtonFace::pressMouse(QMouseEvent& mouse) {
  if (mouse.type() != QEvent::MouseButtonDblClick || !button_.onDoubleClick) return false;
  if (mouse.button() != Qt::LeftButton) return false;
  firstClick_.stop();
  press([this] { button_.userDoubleClick(); });
  return true;
}

/// All keys are the model's: Qt would press the button later, or move its own focus by the arrows.
bool ButtonFace::pressKey(QKeyEvent& key) {
  const std::int16_t code = keyCodeOf(key);
  if (code == 0) return false;
  if (beforePress && (code == keys::enter || code == keys::blank)) beforePress();
  sendKey(key);
  return true;
}

/// A mnemonic clicks at once; by itself Qt would show the button pressed for a while first.
bool ButtonFace::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Shortcut && watched == widget_) {
    if (static_cast<QShortcutEvent*>(event)->isAmbiguous()) return false;
    press([this] { button_.userClick(); });
    return true;
  }
  return Face::eventFilter(watched, event);
}

}  // namespace awizo::desktop
