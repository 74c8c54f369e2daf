#pragma once

#include <QTableView>
#include <functional>

namespace awizo::desktop {

/// A view that moves nothing by itself: keys and the mouse reach it through the model. The whole of
/// the current row is tinted and has a bar at its left edge, whichever of its columns are shown;
/// what is marked is pale where keys go elsewhere.
class TableView : public QTableView {
 public:
  explicit TableView(QWidget* parent);

  /// The current row as the view counts rows; -1 for none. Set once, by who makes the view.
  std::function<int()> currentRow;

 protected:
  void initViewItemOption(QStyleOptionViewItem* option) const override;
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent*) override {}
  void mouseMoveEvent(QMouseEvent*) override {}
  void mouseReleaseEvent(QMouseEvent*) override {}
  void mouseDoubleClickEvent(QMouseEvent*) override {}
};

/// The colour of a current row's cell that lies on this background.
QColor currentRowColour(const QPalette& palette, const QColor& background);

}  // namespace awizo::desktop
