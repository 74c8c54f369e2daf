#include "platform/forms/control.h"

#include <utility>

#include "platform/forms/form.h"

namespace awizo {

Control::Control(Form& form, std::string name, ControlKind kind)
    : form_(form), name_(std::move(name)), kind_(kind) {
  form_.add(*this);
}

void Control::setVisible(bool visible) {
  if (visible_ == visible) return;
  visible_ = visible;
  changed(Aspect::visible);
  if (!visible_) form_.leave(*this);
}

void Control::setEnabled(bool enabled) {
  if (enabled_ == enabled) return;
  enabled_ = enabled;
  changed(Aspect::enabled);
  if (!enabled_) form_.leave(*this);
}

void Control::move(const Place& place) {
  if (place_ == place) return;
  place_ = place;
  changed(Aspect::place);
}

bool Control::hasFocus() const { return form_.focus() == this; }

bool Control::isFocusable() const {
  switch (kind_) {
    case ControlKind::label:
    case ControlKind::pictureButton:
    case ControlKind::spinButtons:
    case ControlKind::frame:
      return false;
    default:
      return true;
  }
}

bool Control::canTakeFocus() const {
  return isFocusable() && visible_ && enabled_ && form_.shown();
}

bool Control::takesInput() const { return visible_ && enabled_ && form_.takesInput(); }

void Control::setFocus() {
  if (canTakeFocus()) form_.moveFocus(*this, Form::FocusCause::code);
}

void Control::userFocus() {
  requireUser();
  if (!isFocusable()) refuseFocus();
  const Acting focusing = acting(ActKind::focus);
  form_.moveFocus(*this, Form::FocusCause::user);
}

void Control::userKey(std::int16_t code, bool shift) {
  requireUser();
  if (!isFocusable()) refuseFocus();
  const Acting key = acting(ActKind::key, {}, {code, shift ? 1 : 0});
  pressKey(code, shift);
}

void Control::requireUser() const {
  form_.requireInput();
  if (!visible_) throw Refused(name_ + " is hidden");
  if (!enabled_) throw Refused(name_ + " is disabled");
}

void Control::refuseFocus() const { throw Refused(name_ + " takes no focus"); }

Acting Control::acting(ActKind kind, std::string_view text,
                       const std::array<int, 4>& numbers) const {
  return {form_.screen(), {kind, text, numbers, &form_, this}};
}

void Control::tellAll() {
  for (const Aspect aspect : {Aspect::visible, Aspect::enabled, Aspect::place, Aspect::rows,
                              Aspect::layout, Aspect::content, Aspect::selection, Aspect::scroll}) {
    changed(aspect);
  }
}

void Control::raise(const Event& event) { form_.raise(event); }

bool Control::takeUserFocus() {
  userFocus();
  return hasFocus() && takesInput();
}

bool Control::takeUserKey(std::int16_t code, bool shift) {
  return takeUserFocus() && !form_.pressKey(*this, code, shift);
}

KeptPart Control::keep(const KeptPart& earlier) const { return keptOf(earlier, common(*this)); }

void Control::putBack(const Kept& kept) { putBackInto(common(*this), kept); }

}  // namespace awizo
