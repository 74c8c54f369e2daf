#include "hosts/desktop/layouts/wrapping.h"

#include <QEvent>
#include <QScreen>
#include <QStyle>
#include <algorithm>

namespace awizo::desktop {

QLayoutItem* WrappingLayout::itemAt(int index) const {
  const bool exists = index >= 0 && index < count();
  return exists ? items_[static_cast<std::size_t>(index)].get() : nullptr;
}

QLayoutItem* WrappingLayout::takeAt(int index) {
  if (itemAt(index) == nullptr) return nullptr;
  const auto taken = items_.begin() + index;
  QLayoutItem* item = taken->release();
  items_.erase(taken);
  return item;
}

QSize WrappingLayout::sizeHint() const {
  QSize whole(0, 0);
  for (const auto& item : items_) {
    if (item->isEmpty()) continue;
    const QSize size = item->sizeHint();
    whole = {whole.width() + (whole.isEmpty() ? 0 : spacing()) + size.width(),
             std::max(whole.height(), size.height())};
  }
  return whole;
}

QSize WrappingLayout::minimumSize() const {
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
  for (const auto& item : items_) {
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

void Wrapped::takeHeight() {
  const bool wraps = layout()->hasHeightForWidth();
  setFixedHeight(wraps ? layout()->heightForWidth(width()) : layout()->sizeHint().height());
}

bool Wrapped::event(QEvent* event) {
  // A layout that is at work doesn't notice a height that changes meanwhile.
  if (event->type() == QEvent::Resize || event->type() == QEvent::LayoutRequest) {
    QMetaObject::invokeMethod(
        this, [this] { takeHeight(); }, Qt::QueuedConnection);
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
