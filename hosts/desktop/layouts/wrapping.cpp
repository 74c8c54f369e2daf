#include "hosts/desktop/layouts/wrapping.h"

#include <QCoreApplication>
#include <QEvent>
#include <QScreen>
#include <QStyle>
#include <algorithm>
#include <utility>

namespace awizo::desktop {

QLayoutItem* ListLayout::itemAt(int index) const {
  const bool exists = index >= 0 && index < count();
  return exists ? items_[static_cast<std::size_t>(index)].get() : nullptr;
}

QLayoutItem* ListLayout::takeAt(int index) {
  if (itemAt(index) == nullptr) return nullptr;
  const auto taken = items_.begin() + index;
  QLayoutItem* item = taken->release();
  items_.erase(taken);
  return item;
}

QSize ListLayout::sizeHint() const {
  QSize whole(0, 0);
  for (const auto& item : items_) {
    if (item->isEmpty()) continue;
    const QSize size = item->sizeHint();
    whole = {whole.width() + (whole.isEmpty() ? 0 : spacing()) + size.width(),
             std::max(whole.height(), size.height())};
  }
  return whole;
}

QSize ListLayout::minimumSize() const {
  QSize least(0, 0);
  for (const auto& item : items_) {
    if (!item->isEmpty()) least = least.expandedTo(item->minimumSize());
  }
  return least;
}

void WrappingLayout::setGeometry(const QRect& area) {
  QLayout::setGeometry(area);
  place(area, Placing::done);
}

int WrappingLayout::place(const QRect& area, Placing placing) const {
  int x = area.left();
  int y = area.top();
  const int lineHeight = sizeHint().height();
  for (const auto& item : items()) {
    if (item->isEmpty()) continue;
    const QSize size(std::min(item->sizeHint().width(), area.width()), item->sizeHint().height());
    if (x > area.left() && x + size.width() > area.left() + area.width()) {
      x = area.left();
      y += lineHeight + spacing();
    }
    const int middle = y + (lineHeight - size.height()) / 2;
    if (placing == Placing::done) item->setGeometry({{x, middle}, size});
    x += size.width() + spacing();
  }
  return y + lineHeight - area.top();
}

void Wrapped::takeHeight(int width) {
  const bool wraps = layout()->hasHeightForWidth();
  const int needed = wraps ? layout()->heightForWidth(width) : layout()->sizeHint().height();
  if (needed == minimumHeight() && needed == maximumHeight()) return;
  setFixedHeight(needed);
  // All around takes it at once, and not one after the other with paintings between.
  for (QWidget* around = parentWidget(); around != nullptr; around = around->parentWidget()) {
    QCoreApplication::sendPostedEvents(around, QEvent::LayoutRequest);
  }
}

bool Wrapped::event(QEvent* event) {
  // A layout that is at work doesn't notice a height that changes meanwhile.
  const bool matters = event->type() == QEvent::Resize || event->type() == QEvent::LayoutRequest;
  if (matters && !std::exchange(isDue_, true)) {
    QMetaObject::invokeMethod(
        this,
        [this] {
          isDue_ = false;
          takeHeight(width());
        },
        Qt::QueuedConnection);
  }
  return QWidget::event(event);
}

Scrolled::Scrolled(QWidget* content) {
  setFrameShape(QFrame::NoFrame);
  setWidgetResizable(true);
  setFocusPolicy(Qt::NoFocus);
  setWidget(content);
}

QSize Scrolled::sizeHint() const { return widget()->sizeHint(); }

QSize roomFor(const QWidget& widget) {
  const int edge = widget.style()->pixelMetric(QStyle::PM_DefaultFrameWidth, nullptr, &widget) * 4;
  const int title = widget.style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, &widget);
  return widget.screen()->availableSize() - QSize(2 * edge, title + 2 * edge);
}

}  // namespace awizo::desktop
