#include "hosts/desktop/window/moving_bar.h"

#include <QPainter>

namespace awizo::desktop {

MovingBar::MovingBar(QWidget* parent) : QWidget(parent) {
  setFixedHeight(std::max(6, fontMetrics().height() / 3));
}

int MovingBar::position() const {
  const int place = moves_ % (2 * steps);
  return place <= steps ? place : 2 * steps - place;
}

void MovingBar::advance() {
  ++moves_;
  update();
}

void MovingBar::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  const double round = height() / 2.0;
  painter.setBrush(palette().color(QPalette::Mid));
  painter.drawRoundedRect(rect(), round, round);
  const double length = width() / 4.0;
  painter.setBrush(palette().color(QPalette::Highlight));
  painter.drawRoundedRect(QRectF((width() - length) * position() / steps, 0, length, height()),
                          round, round);
}

}  // namespace awizo::desktop
