#include "platform/forms/form.h"

#include <algorithm>

#include "platform/forms/button.h"
#include "platform/forms/keys.h"

namespace awizo {

Form::Form(Screen& screen, std::string name) : screen_(screen), name_(std::move(name)) {}

Form::~Form() { screen_.forget(*this); }

Control* Form::find(std::string_view name) const {
  const auto found = std::find_if(controls_.begin(), controls_.end(),
                                  [&](const Control* control) { return control->name() == name; });
  return found == controls_.end() ? nullptr : *found;
}

void Form::setCaption(std::string_view caption) {
  if (caption_ == caption) return;
  caption_ = caption;
  changed(Aspect::content);
}

void Form::setEnabled(bool enabled) {
  if (enabled_ == enabled) return;
  enabled_ = enabled;
  changed(Aspect::enabled);
}

void Form::showModal() {
  if (shown_) return;
  shown_ = true;
  changed(Aspect::visible);
  try {
    screen_.runModal(*this);
  } catch (...) {
    hide();
    throw;
  }
  hide();
}

void Form::showMain() {
  if (shown_) return;
  shown_ = true;
  changed(Aspect::visible);
  screen_.showMain(*this);
}

void Form::hide() {
  if (!shown_) return;
  shown_ = false;
  changed(Aspect::visible);
}

void Form::userClose() {
  requireInput();
  if (!onClose && closeButton == nullptr) throw Refused(name_ + " can't be closed");
  const Acting closing(screen_, {ActKind::closeForm, {}, {}, this, nullptr});
  if (onClose) return raise(onClose);
  closeButton->userPress();
}

void Form::requireInput() const {
  if (screen_.openBox() != nullptr) throw Refused("a message box is open");
  if (!shown_) throw Refused(name_ + " isn't shown");
  if (screen_.top() != this) throw Refused(name_ + " lies behind " + screen_.top()->name());
  if (!enabled_) throw Refused(name_ + " is disabled");
}

void Form::raise(const Event& event) {
  if (event) screen_.runEvent(event);
}

void Form::activate() {
  raise(onActivate);
  if (!shown_ || focus_ != nullptr) return;
  for (Control* control : controls_) {
    if (control->canTakeFocus()) return moveFocus(*control, FocusCause::code);
  }
}

void Form::tellAll() {
  changed(Aspect::content);
  changed(Aspect::enabled);
  for (Control* control : controls_) control->changed(Aspect::focus);
  changed(Aspect::focus);
}

bool Form::validateFocus() {
  Control& left = *focus_;
  if (!left.mayBeLeft()) {
    // The platform's own box: its title is the program's name, not that of the procedure.
    screen_.showExclamation("Invalid property value.", "");
    return false;
  }
  left.raise(left.onValidate);
  return true;
}

void Form::moveFocus(Control& control, FocusCause cause) {
  if (focus_ == &control) return;
  if (cause == FocusCause::user && focus_ != nullptr && !validateFocus()) return;
  // Every event procedure on the way may hide the control or move the focus itself.
  if (focus_ == &control || !control.canTakeFocus()) return;
  if (focus_ != nullptr) leave(*focus_);
  if (focus_ != nullptr || !control.canTakeFocus()) return;
  focus_ = &control;
  control.changed(Aspect::focus);
  changed(Aspect::focus);
  control.raise(control.onGotFocus);
}

void Form::leave(Control& control) {
  if (focus_ != &control) return;
  focus_ = nullptr;
  control.changed(Aspect::focus);
  changed(Aspect::focus);
  if (shown_) control.raise(control.onLostFocus);
}

bool Form::pressKey(const Control& control, std::int16_t code, bool shift) {
  if (code == keys::tab) {
    tabFrom(control, shift);
    return true;
  }
  Button* pressed = code == keys::enter ? acceptButton : nullptr;
  if (code == keys::escape) pressed = closeButton;
  if (pressed == nullptr || !pressed->takesInput()) return false;
  pressed->userPress();
  return true;
}

bool Form::userKey(std::int16_t code, bool shift) {
  if (focus_ != nullptr) {
    focus_->userKey(code, shift);
    return true;
  }
  if (code == keys::enter || code == keys::escape) {
    Button* pressed = code == keys::enter ? acceptButton : closeButton;
    if (pressed != nullptr) pressed->userPress();
    return true;
  }
  if (code != keys::tab) return false;
  const auto next = std::ranges::find_if(controls_, [](const Control* control) {
    return control->canTakeFocus() && !control->covered();
  });
  if (next != controls_.end()) (*next)->userFocus();
  return true;
}

void Form::tabFrom(const Control& control, bool backwards) {
  const std::size_t count = controls_.size();
  const auto from = static_cast<std::size_t>(
      std::find(controls_.begin(), controls_.end(), &control) - controls_.begin());
  for (std::size_t step = 1; step < count; ++step) {
    Control& next = *controls_[(from + (backwards ? count - step : step)) % count];
    if (next.canTakeFocus() && !next.covered()) return moveFocus(next, FocusCause::user);
  }
}

KeptPart Form::keep(const KeptPart& earlier) const { return keptOf(earlier, common(*this)); }

void Form::putBack(const Kept& kept) { putBackInto(common(*this), kept); }

}  // namespace awizo
