#include "hosts/desktop/layouts/long_text.h"

#include <algorithm>

namespace awizo::desktop {

LongText::LongText(const QString& name) {
  setObjectName(name);
  setTextFormat(Qt::PlainText);
  setTextInteractionFlags(Qt::TextSelectableByMouse);
  setFocusPolicy(Qt::NoFocus);
  setWordWrap(true);
  setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
  setFixedHeight(fontMetrics().height());
}

void LongText::setWords(const QString& words) {
  setText(words);
  setToolTip(words);
  if (width() == width_) takeHeight();
}

void LongText::resizeEvent(QResizeEvent* event) {
  QLabel::resizeEvent(event);
  if (width() == width_) return;
  // A layout that is at work doesn't notice a height that changes meanwhile.
  QMetaObject::invokeMethod(
      this, [this] { takeHeight(); }, Qt::QueuedConnection);
}

void LongText::takeHeight() {
  const int before = width() == width_ ? height() : fontMetrics().height();
  width_ = width();
  setFixedHeight(std::max(heightForWidth(width_), before));
}

}  // namespace awizo::desktop
