#pragma once

#include <QKeyEvent>
#include <cstdint>

#include "platform/forms/keys.h"

namespace awizo::desktop {

/// The platform's number of a key that isn't typed text, 0 for any other and for a key that is
/// held with Ctrl, Alt or Meta.
inline std::int16_t keyCodeOf(const QKeyEvent& key) {
  if (key.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) return 0;
  switch (key.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return keys::enter;
    case Qt::Key_Escape:
      return keys::escape;
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
      return keys::tab;
    case Qt::Key_Space:
      return keys::blank;
    case Qt::Key_Up:
      return keys::up;
    case Qt::Key_Down:
      return keys::down;
    case Qt::Key_Left:
      return keys::left;
    case Qt::Key_Right:
      return keys::right;
    case Qt::Key_Home:
      return keys::home;
    case Qt::Key_End:
      return keys::end;
    case Qt::Key_PageUp:
      return keys::pageUp;
    case Qt::Key_PageDown:
      return keys::pageDown;
    default:
      return 0;
  }
}

/// The character that the key types, as a capital, for a search by typing; empty for any other key.
inline QString typedCharacter(const QKeyEvent& key) {
  if (key.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) return {};
  const QString text = key.text().toUpper();
  return !text.isEmpty() && text.front().isPrint() && text != " " ? text : QString();
}

inline bool isShifted(const QKeyEvent& key) {
  return key.key() == Qt::Key_Backtab || key.modifiers().testFlag(Qt::ShiftModifier);
}

}  // namespace awizo::desktop
