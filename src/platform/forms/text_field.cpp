#include "platform/forms/text_field.h"

#include <algorithm>

#include "platform/forms/form.h"
#include "platform/forms/keys.h"
#include "platform/run_time_error.h"
#include "platform/text.h"

namespace awizo {

std::string_view TextField::withinLimit(std::string_view text) const {
  return limit_ > 0 ? firstCharacters(text, static_cast<std::size_t>(limit_)) : text;
}

void TextField::assign(std::string_view text, int caret) {
  if (text_ == text) return;
  text_ = text;
  caret_ = caret;
  changed(Aspect::content);
  raise(onChange);
}

void TextField::setText(std::string_view text) { assign(withinLimit(text), 0); }

void TextField::setCaret(int caret) {
  if (caret < 0) throw errors::invalidPropertyValue();
  caret_ = std::min(caret, static_cast<int>(countCharacters(text_)));
  changed(Aspect::content);
}

void TextField::userType(std::string_view text) {
  requireUser();
  const Acting typing = acting(ActKind::type, text);
  if (!takeUserFocus()) return;
  const std::string line = withoutControlCharacters(text);
  const std::string_view typed = withinLimit(line);
  assign(typed, static_cast<int>(countCharacters(typed)));
}

void TextField::pressKey(std::int16_t code, bool shift) {
  if (!takeUserKey(code, shift)) return;
  if (onKeyDown) raise([&] { onKeyDown(code, shift); });
  std::int16_t character = keys::characterOf(code, shift);
  // A key's character belongs to the field in which the key went down, also when KeyDown has sent
  // the focus elsewhere or hidden the field.
  if (character == 0 || !onKeyPress || !form().takesInput()) return;
  raise([&] { onKeyPress(character); });
}

KeptPart TextField::keep(const KeptPart& earlier) const { return keptOf(earlier, members(*this)); }

void TextField::putBack(const Kept& kept) { putBackInto(members(*this), kept); }

}  // namespace awizo
