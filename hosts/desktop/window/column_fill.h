#pragma once

#include <QTableView>

namespace awizo::desktop {

/// Gives one column of a table what room is left beside the others, and never less than the width
/// that it was given or the user chose.
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
