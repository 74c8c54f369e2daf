#include "platform/forms/button.h"

#include "platform/forms/keys.h"

namespace awizo {

void Button::setCaption(std::string_view caption) {
  if (caption_ == caption) return;
  caption_ = caption;
  changed(Aspect::content);
}

bool Button::takeClick() { return !isFocusable() || takeUserFocus(); }

void Button::userClick() {
  requireUser();
  const Acting clicking = acting(ActKind::click);
  if (takeClick()) raise(onClick);
}

void Button::userPress() {
  requireUser();
  const Acting pressing = acting(ActKind::press);
  raise(onClick);
}

void Button::userDoubleClick() {
  requireUser();
  const Acting clicking = acting(ActKind::doubleClick);
  if (!takeClick()) return;
  if (!doubleClickAlone) raise(onClick);
  // The first click may have disabled the button or left a form on top.
  if (takesInput()) raise(onDoubleClick);
}

void Button::pressKey(std::int16_t code, bool shift) {
  const bool presses = code == keys::enter || code == keys::blank;
  if (!presses) return Control::pressKey(code, shift);
  if (takeUserFocus()) raise(onClick);
}

KeptPart Button::keep(const KeptPart& earlier) const { return keptOf(earlier, members(*this)); }

void Button::putBack(const Kept& kept) { putBackInto(members(*this), kept); }

}  // namespace awizo
