#include "hosts/desktop/faces/russian_keys.h"

#include <QAction>
#include <QApplication>
#include <QStringView>
#include <QWidget>

namespace awizo::desktop {
namespace {

// One below the other, as on the keys.
constexpr QStringView latinLetters = u"QWERTYUIOPASDFGHJKLZXCVBNM";
constexpr QStringView russianLetters = u"ЙЦУКЕНГШЩЗФЫВАПРОЛДЯЧСМИТЬ";

/// Letters have the numbers of their capitals.
Qt::Key beside(int key, QStringView letters, QStringView others) {
  const qsizetype place = key <= 0xFFFF ? letters.indexOf(QChar(key)) : -1;
  return place < 0 ? Qt::Key(0) : Qt::Key(others.at(place).unicode());
}

/// Does what these keys mean in the window; answers whether they mean anything.
bool trigger(const QWidget& window, const QKeySequence& keys) {
  for (QAction* action : window.findChildren<QAction*>()) {
    if (!action->shortcuts().contains(keys)) continue;
    action->trigger();
    return true;
  }
  return false;
}

}  // namespace

Qt::Key onRussianKeyboard(Qt::Key latin) { return beside(latin, latinLetters, russianLetters); }

RussianKeys::RussianKeys(QObject* parent) : QObject(parent) { qApp->installEventFilter(this); }

bool RussianKeys::eventFilter(QObject* watched, QEvent* event) {
  const bool isPress = event->type() == QEvent::KeyPress;
  if ((!isPress && event->type() != QEvent::ShortcutOverride) || !watched->isWidgetType()) {
    return false;
  }
  const auto& key = static_cast<const QKeyEvent&>(*event);
  const Qt::Key latin = beside(key.key(), russianLetters, latinLetters);
  if (latin == 0 || (key.modifiers() & ~Qt::ShiftModifier) != Qt::ControlModifier) return false;
  const QWidget& window = *static_cast<QWidget*>(watched)->window();
  if (isPress && !isFields_ && trigger(window, QKeySequence(key.modifiers() | latin))) return true;
  QKeyEvent same(event->type(), latin, key.modifiers(), key.text(), key.isAutoRepeat());
  QApplication::sendEvent(watched, &same);
  if (!isPress) isFields_ = same.isAccepted();
  // A press has been offered to all around the widget by now.
  event->setAccepted(isPress || isFields_);
  return true;
}

}  // namespace awizo::desktop
