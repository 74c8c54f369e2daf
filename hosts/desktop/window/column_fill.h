#pragma once

#include <QTableView>

namespace awizo::desktop {

/// Widens one column of a table to the room that the others leave, but keeps it at least as wide as
/// it was set or the user chose.
class ColumnFill : public QObject {
 public:
  ColumnFill(QTableView& view, int column);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void sectionResized(int column, int width);
  void fill();

  QTableView& view_;
  int column_;
  int least_ = 0;
  bool filling_ = false;
};

}  // namespace awizo::desktop
