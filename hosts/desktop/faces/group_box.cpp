#include "hosts/desktop/faces/group_box.h"

#include <QStyleOptionGroupBox>
#include <QStylePainter>

namespace awizo::desktop {
namespace {

/// Between the heading and the line below it.
constexpr int distance = 3;

}  // namespace

void GroupBox::paintEvent(QPaintEvent* /*event*/) {
  QStylePainter painter(this);
  QStyleOptionGroupBox look;
  initStyleOption(&look);
  QRect frame = rect().adjusted(0, 0, -1, -1);
  if (!title().isEmpty()) {
    frame.setTop(style()
                     ->subControlRect(QStyle::CC_GroupBox, &look, QStyle::SC_GroupBoxLabel, this)
                     .bottom() +
                 distance);
  }
  painter.setPen(palette().color(QPalette::Mid));
  painter.drawRect(frame);
  look.subControls &= ~QStyle::SC_GroupBoxFrame;
  painter.drawComplexControl(QStyle::CC_GroupBox, look);
}

}  // namespace awizo::desktop
