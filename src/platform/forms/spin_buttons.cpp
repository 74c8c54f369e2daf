#include "platform/forms/spin_buttons.h"

#include <algorithm>
#include <charconv>

#include "platform/text.h"

namespace awizo {
namespace {

/// The whole number with which the text begins, white space before it skipped; `otherwise` if there
/// is none. Digits beyond a 32-bit number count as none.
int leadingNumber(std::string_view text, int otherwise) {
  const std::string_view digits = trimmed(text);
  int number = 0;
  const auto read = std::from_chars(digits.data(), digits.data() + digits.size(), number);
  return read.ec == std::errc{} ? number : otherwise;
}

}  // namespace

void SpinButtons::setMin(int min) {
  if (min_ == min) return;
  min_ = min;
  changed(Aspect::content);
}

void SpinButtons::setMax(int max) {
  if (max_ == max) return;
  max_ = max;
  changed(Aspect::content);
}

void SpinButtons::userSpin(int by) {
  requireUser();
  const Acting spinning = acting(ActKind::spin, {}, {by});
  const long long moved = static_cast<long long>(leadingNumber(field_.text(), value_)) + by;
  // Not std::clamp: limits that fit no value must do no harm, and the lower one wins.
  value_ = static_cast<int>(std::max<long long>(std::min<long long>(moved, max_), min_));
  field_.setText(std::to_string(value_));
}

KeptPart SpinButtons::keep(const KeptPart& earlier) const {
  return keptOf(earlier, members(*this));
}

void SpinButtons::putBack(const Kept& kept) { putBackInto(members(*this), kept); }

}  // namespace awizo
