#include "hosts/desktop/faces/face.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>

#include "hosts/desktop/faces/form_face.h"
#include "hosts/desktop/faces/key_codes.h"

namespace awizo::desktop {
namespace {

bool doesTextAgain(const QObject* watched, const QEvent& event) {
  const auto& key = static_cast<const QKeyEvent&>(event);
  return qobject_cast<const QLineEdit*>(watched) != nullptr && key.key() == Qt::Key_Y &&
         key.modifiers() == Qt::ControlModifier;
}

}  // namespace

Face::Face(FormFace& form, Control& control, QWidget* widget)
    : QObject(widget), form_(form), control_(control), widget_(widget) {
  widget->setObjectName(fromText(control.name()));
  observation_ = control.observers.add([this](const Change& change) { showChange(change); });
  watch(widget);
}

Face::~Face() { release(); }

void Face::release() {
  if (observation_) control_.observers.remove(*observation_);
  observation_.reset();
}

bool Face::hasFocus() const { return form_.focusedFace() == this; }

void Face::showAll() {
  showState();
  showContent();
}

void Face::showState() {
  const auto following = form_.following();
  const bool visible = control_.visible() && !control_.covered();
  if (widget_->isHidden() == visible) widget_->setVisible(visible);
  if (widget_->isEnabledTo(widget_->parentWidget()) != control_.enabled()) {
    widget_->setEnabled(control_.enabled());
  }
}

void Face::showChange(const Change& change) {
  switch (change.aspect) {
    case Aspect::visible:
    case Aspect::enabled:
      showState();
      form_.stateShown(*this);
      break;
    case Aspect::focus:
    case Aspect::place:
      break;
    default:
      showContent();
      break;
  }
}

void Face::act(const std::function<void()>& action) {
  form_.act(action);
  showAll();
}

void Face::sendKey(const QKeyEvent& key) {
  finishTyping();
  const std::int16_t code = keyCodeOf(key);
  const bool shift = isShifted(key);
  act([&] { control_.userKey(code, shift); });
}

bool Face::pressKey(QKeyEvent& key) {
  const std::int16_t code = keyCodeOf(key);
  if (code == 0 || code == keys::blank) return false;
  sendKey(key);
  return code == keys::enter || code == keys::escape || !hasFocus();
}

bool Face::eventFilter(QObject* watched, QEvent* event) {
  switch (event->type()) {
    case QEvent::FocusIn:
      if (watched == focusWidget()) {
        form_.focusCame(*this, static_cast<QFocusEvent&>(*event).reason());
      }
      break;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
      if (control_.isFocusable() && !form_.moveFocusTo(*this)) return true;
      return pressMouse(static_cast<QMouseEvent&>(*event));
    case QEvent::ShortcutOverride:
      // In a text the key is the text's own, as the one that takes back is.
      if (!doesTextAgain(watched, *event)) break;
      event->accept();
      return true;
    case QEvent::KeyPress: {
      if (doesTextAgain(watched, *event)) {
        static_cast<QLineEdit*>(watched)->redo();
        return true;
      }
      // A key that a part of the widget left alone comes by here on its way up.
      if (watched != widget_->window()->focusWidget()) break;
      auto& key = static_cast<QKeyEvent&>(*event);
      if (keyCodeOf(key) != keys::tab) return pressKey(key);
      const auto byKeyboard = form_.byKeyboard();
      sendKey(key);
      return true;
    }
    case QEvent::Wheel:
      if (takesWheel()) break;
      event->ignore();
      return true;
    default:
      break;
  }
  return QObject::eventFilter(watched, event);
}

}  // namespace awizo::desktop
