#include "hosts/desktop/layouts/turning_splitter.h"

#include <algorithm>

namespace awizo::desktop {

TurningSplitter::TurningSplitter() : QSplitter(Qt::Horizontal) {
  connect(this, &QSplitter::splitterMoved, this, [this] { given_[orientation()] = sizes(); });
}

void TurningSplitter::giveSizes(Qt::Orientation way, const QList<int>& sizes) {
  given_[way] = sizes;
  if (way == orientation()) setSizes(sizes);
}

QList<int> TurningSplitter::usualSizes() const {
  QList<int> sizes;
  for (int i = 0; i < count(); ++i) {
    const QSize hint = widget(i)->sizeHint();
    sizes << (orientation() == Qt::Horizontal ? hint.width() : hint.height());
  }
  return sizes;
}

QSize TurningSplitter::minimumSizeHint() const {
  QSize least = QSplitter::minimumSizeHint();
  int widest = 0;
  for (int i = 0; i < count(); ++i) widest = std::max(widest, widget(i)->minimumSizeHint().width());
  least.setWidth(widest);
  return least;
}

Qt::Orientation TurningSplitter::wanted() const {
  int width = handleWidth() * (count() - 1);
  for (int i = 0; i < count(); ++i) width += widget(i)->minimumSizeHint().width();
  return width <= this->width() ? Qt::Horizontal : Qt::Vertical;
}

void TurningSplitter::resizeEvent(QResizeEvent* event) {
  QSplitter::resizeEvent(event);
  if (wanted() == orientation()) return;
  // The layout that is at work has placed it as it was.
  QMetaObject::invokeMethod(
      this, [this] { turn(); }, Qt::QueuedConnection);
}

void TurningSplitter::turn() {
  const Qt::Orientation turned = wanted();
  if (turned == orientation()) return;
  setOrientation(turned);
  // Before it turned they were squeezed, and the other way they mean nothing.
  setSizes(given_.value(turned, usualSizes()));
  updateGeometry();
}

}  // namespace awizo::desktop
