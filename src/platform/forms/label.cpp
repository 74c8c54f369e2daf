#include "platform/forms/label.h"

namespace awizo {

void Label::setCaption(std::string_view caption) {
  if (caption_ == caption) return;
  caption_ = caption;
  changed(Aspect::content);
}

KeptPart Label::keep(const KeptPart& earlier) const { return keptOf(earlier, members(*this)); }

void Label::putBack(const Kept& kept) { putBackInto(members(*this), kept); }

}  // namespace awizo
