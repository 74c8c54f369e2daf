#include "hosts/desktop/faces/table_view.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>
#include <QStyledItemDelegate>

namespace awizo::desktop {
namespace {

constexpr int barWidth = 4;

/// The first colour with this many tenths of the second.
QColor mixed(const QColor& one, const QColor& other, int tenths) {
  const auto between = [tenths](int left, int right) {
    return ((10 - tenths) * left + tenths * right) / 10;
  };
  return {between(one.red(), other.red()), between(one.green(), other.green()),
          between(one.blue(), other.blue())};
}

/// Tints the cells of the current row.
class RowTint : public QStyledItemDelegate {
 public:
  explicit RowTint(TableView& view) : QStyledItemDelegate(&view), view_(view) {}

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
    QStyledItemDelegate::initStyleOption(option, index);
    if (index.row() != view_.currentRow()) return;
    const bool coloured = option->backgroundBrush.style() != Qt::NoBrush;
    option->backgroundBrush =
        currentRowColour(view_.palette(), coloured ? option->backgroundBrush.color()
                                                   : view_.palette().color(QPalette::Base));
  }

 private:
  TableView& view_;
};

/// Headings of one line: the first that is shown tells the height of all.
class Headings : public QHeaderView {
 public:
  explicit Headings(QWidget* parent) : QHeaderView(Qt::Horizontal, parent) {}

  QSize sizeHint() const override {
    for (int column = 0; column < count(); ++column) {
      if (!isSectionHidden(column)) return {length(), sectionSizeFromContents(column).height()};
    }
    return QHeaderView::sizeHint();
  }
};

}  // namespace

QColor currentRowColour(const QPalette& palette, const QColor& background) {
  return mixed(background, palette.color(QPalette::Highlight), 2);
}

TableView::TableView(QWidget* parent) : QTableView(parent) {
  setItemDelegate(new RowTint(*this));
  setHorizontalHeader(new Headings(this));
}

void TableView::initViewItemOption(QStyleOptionViewItem* option) const {
  QTableView::initViewItemOption(option);
  if (hasFocus()) return;
  const QColor pale =
      mixed(palette().color(QPalette::Base), palette().color(QPalette::Highlight), 3);
  option->palette.setColor(QPalette::Highlight, pale);
  option->palette.setColor(QPalette::HighlightedText, palette().color(QPalette::Text));
}

void TableView::paintEvent(QPaintEvent* event) {
  QTableView::paintEvent(event);
  const int row = currentRow();
  if (row < 0) return;
  QPainter painter(viewport());
  painter.fillRect(0, rowViewportPosition(row), barWidth, rowHeight(row) - 1,
                   palette().color(QPalette::Highlight));
}

void TableView::keyPressEvent(QKeyEvent* event) { event->ignore(); }

}  // namespace awizo::desktop
