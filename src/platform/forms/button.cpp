#include "platform/forms/button.h"

#include "platform/forms/keys.h"

namespace awizo {

void Button::setCaption(std::string_view caption) {
  if (caption_ == caption) return;
  caption_ = caption;
  changed(Aspect::content);
}

bool Button::takeClick() {
  if (isFocusable()) return takeUserFocus();
  requireUser();
  return true;
}

void Button::userClick() {
  if (takeClick()) raise(onClick);
}

void Button::userPress() {
  requireUser();
  raise(onClick);
}

void Button::userDoubleClick() {
  if (!takeClick()) return;
  if (!doubleClickAlone) raise(onClick);
  // The first click may have disabled the button or left a form on top.
  if (takesInput()) raise(onDoubleClick);
}

void Button::userKey(std::int16_t code, bool shift) {
  const bool presses = code == keys::enter || code == keys::blank;
  if (!presses) return Control::userKey(code, shift);
  if (takeUserFocus()) raise(onClick);
}

}  // namespace awizo
