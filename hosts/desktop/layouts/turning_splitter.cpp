#include "hosts/desktop/layouts/turning_splitter.h"

#include <QEvent>
#include <algorithm>

#include "hosts/desktop/faces/text.h"

namespace awizo::desktop {
namespace {

int leastWidth(const QWidget& part) {
  return std::max(part.minimumSizeHint().width(), part.minimumWidth());
}

}  // namespace

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
  for (int i = 0; i < count(); ++i) {
    if (!widget(i)->isHidden()) widest = std::max(widest, leastWidth(*widget(i)));
  }
  least.setWidth(widest);
  return least;
}

int TurningSplitter::widthSideBySide() const {
  int width = -handleWidth();
  for (int i = 0; i < count(); ++i) {
    if (!widget(i)->isHidden()) width += handleWidth() + leastWidth(*widget(i));
  }
  return width;
}

Qt::Orientation TurningSplitter::wanted() const {
  return widthSideBySide() <= width() ? Qt::Horizontal : Qt::Vertical;
}

bool TurningSplitter::event(QEvent* event) {
  const bool done = QSplitter::event(event);
  const bool matters = event->type() == QEvent::Resize || event->type() == QEvent::LayoutRequest;
  if (matters && wanted() != orientation()) {
    // The layout that is at work has placed it as it was.
    QMetaObject::invokeMethod(
        this, [this] { turn(); }, Qt::QueuedConnection);
  }
  return done;
}

void TurningSplitter::turn() {
  const Qt::Orientation turned = wanted();
  if (turned == orientation()) return;
  setOrientation(turned);
  // Before it turned they were squeezed, and the other way they mean nothing.
  setSizes(given_.value(turned, usualSizes()));
  updateGeometry();
}

std::string keptName(const TurningSplitter& splitter, Qt::Orientation way) {
  const std::string name = toText(splitter.objectName());
  return way == Qt::Horizontal ? name : name + "Below";
}

}  // namespace awizo::desktop
