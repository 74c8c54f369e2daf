#include "hosts/desktop/layouts/turning_splitter.h"

#include <algorithm>

namespace awizo::desktop {

TurningSplitter::TurningSplitter(const QString& name) : QSplitter(Qt::Horizontal), name_(name) {
  setObjectName(name);
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
  const bool isBeside = turned == Qt::Horizontal;
  if (!isBeside) sizesBeside_ = sizes();
  setObjectName(isBeside ? name_ : QString());
  setOrientation(turned);
  if (isBeside) setSizes(sizesBeside_);
  updateGeometry();
}

}  // namespace awizo::desktop
