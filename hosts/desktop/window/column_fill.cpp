#include "hosts/desktop/window/column_fill.h"

#include <QApplication>
#include <QEvent>
#include <QHeaderView>
#include <algorithm>

namespace awizo::desktop {

ColumnFill::ColumnFill(QTableView& view, int column)
    : QObject(&view), view_(view), column_(column), least_(view.columnWidth(column)) {
  view.viewport()->installEventFilter(this);
  connect(view.horizontalHeader(), &QHeaderView::sectionResized, this,
          [this](int resized, int, int width) { sectionResized(resized, width); });
}

void ColumnFill::sectionResized(int column, int width) {
  if (filling_) return;
  if (column == column_) least_ = width;
  // What the user drags stays where it is dragged.
  if (QApplication::mouseButtons() == Qt::NoButton) fill();
}

void ColumnFill::fill() {
  const QHeaderView* header = view_.horizontalHeader();
  const int others = header->length() - header->sectionSize(column_);
  filling_ = true;
  view_.setColumnWidth(column_, std::max(least_, view_.viewport()->width() - others));
  filling_ = false;
}

bool ColumnFill::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Resize) fill();
  return QObject::eventFilter(watched, event);
}

}  // namespace awizo::desktop
