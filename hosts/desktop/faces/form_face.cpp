#include "hosts/desktop/faces/form_face.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QScrollArea>

#include "hosts/desktop/faces/button_face.h"
#include "hosts/desktop/faces/key_codes.h"
#include "hosts/desktop/faces/make_face.h"
#include "hosts/desktop/faces/table_face.h"

namespace awizo::desktop {

void bringIntoSight(QWidget& widget) {
  if (QApplication::mouseButtons() != Qt::NoButton) return;
  for (QWidget* holder = widget.parentWidget(); holder != nullptr;
       holder = holder->parentWidget()) {
    if (auto* area = qobject_cast<QScrollArea*>(holder)) area->ensureWidgetVisible(&widget);
  }
}

FormFace::FormFace(Form& form, QWidget& window) : QObject(&window), form_(form), window_(window) {
  for (Control* control : form.controls()) faces_[control] = makeFace(*this, *control, &window);
  observation_ = form.observers.add([this](const Change& change) { showChange(change); });
  window.installEventFilter(this);
}

FormFace::~FormFace() {
  release();
  for (const auto& [control, face] : faces_) delete face;
}

void FormFace::release() {
  if (!alive_) return;
  form_.observers.remove(observation_);
  for (const auto& [control, face] : faces_) {
    if (face) face->release();
  }
  alive_ = false;
}

Face& FormFace::face(const Control& control) const { return *faces_.at(&control); }

ButtonFace& FormFace::button(const Button& control) const {
  return static_cast<ButtonFace&>(face(control));
}

TableFace& FormFace::table(const Table& control) const {
  return static_cast<TableFace&>(face(control));
}

QLabel& FormFace::label(const Control& control) const {
  return static_cast<QLabel&>(*widget(control));
}

Face* FormFace::find(std::string_view name) const {
  const Control* control = form_.find(name);
  return control == nullptr ? nullptr : &face(*control);
}

void FormFace::showAll() {
  for (const auto& [control, face] : faces_) face->showAll();
  showChange({Aspect::content});
  showChange({Aspect::enabled});
}

void FormFace::showChange(const Change& change) {
  switch (change.aspect) {
    case Aspect::enabled: {
      const auto following = this->following();
      window_.setEnabled(form_.enabled());
      break;
    }
    case Aspect::focus:
      // Between two controls the focus is nowhere for a moment, which nobody need see.
      if (form_.focus() != nullptr) return followFocus();
      QMetaObject::invokeMethod(
          this, [this] { followFocus(); }, Qt::QueuedConnection);
      return;
    default:
      break;
  }
  if (onChange) onChange(change);
  if (change.aspect == Aspect::enabled) followFocus();
}

Face* FormFace::focusedFace() const {
  if (!alive_ || form_.focus() == nullptr) return nullptr;
  const Control& control = *form_.focus();
  return &face(control.covered() ? *control.cover : control);
}

void FormFace::followFocus() {
  if (following_ > 0 || !alive_) return;
  const auto following = this->following();
  QWidget* there = window_.focusWidget();
  const Face* face = focusedFace();
  QWidget* wanted = face == nullptr ? nullptr : face->focusWidget();
  if (wanted == nullptr) {
    if (there != nullptr && there != &window_) there->clearFocus();
  } else if (wanted != there) {
    wanted->setFocus(reason_);
    bringIntoSight(*wanted);
  }
}

bool FormFace::act(const std::function<void()>& action) {
  if (following_ > 0 || !alive_) return false;
  bool taken = true;
  try {
    action();
  } catch (const Refused&) {
    taken = false;
  }
  followFocus();
  return taken;
}

bool FormFace::moveFocusTo(Face& face) {
  if (focusedFace() == &face) return true;
  if (Face* left = focusedFace()) left->finishTyping();
  return act([&] { face.control().userFocus(); }) && focusedFace() == &face;
}

void FormFace::stateShown(Face& face) {
  for (const auto& [control, covered] : faces_) {
    if (control->cover == &face.control()) covered->showAll();
  }
  onStateShown.tell(face);
  // What came to sight may be where the focus has been all along.
  if (form_.focus() != nullptr) followFocus();
}

void FormFace::focusCame(Face& face, Qt::FocusReason reason) {
  if (following_ > 0 || !alive_ || focusedFace() == &face) return;
  // The window or a pop-up has come or gone: the focus is still the model's.
  const bool byUser = reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason ||
                      reason == Qt::MouseFocusReason || reason == Qt::ShortcutFocusReason ||
                      reason == Qt::OtherFocusReason;
  if (byUser && face.control().isFocusable()) {
    moveFocusTo(face);
    bringIntoSight(*face.focusWidget());
  }
  followFocus();
}

bool FormFace::pressKeyWithoutFocus(QKeyEvent& key) {
  const auto byKeyboard = this->byKeyboard();
  bool meant = true;
  act([&] { meant = form_.userKey(keyCodeOf(key), isShifted(key)); });
  return meant;
}

bool FormFace::eventFilter(QObject* watched, QEvent* event) {
  if (watched != &window_ || !alive_) return QObject::eventFilter(watched, event);
  switch (event->type()) {
    case QEvent::KeyPress:
      if (form_.focus() == nullptr && pressKeyWithoutFocus(static_cast<QKeyEvent&>(*event))) {
        return true;
      }
      break;
    case QEvent::WindowActivate:
      followFocus();
      break;
    default:
      break;
  }
  return QObject::eventFilter(watched, event);
}

}  // namespace awizo::desktop
