#pragma once

#include <QWidget>

namespace awizo::desktop {

/// Shows that work goes on, however long: a mark that moves along a line and back. Only advance()
/// moves it, so it stops when the work stops.
class MovingBar : public QWidget {
 public:
  explicit MovingBar(QWidget* parent = nullptr);

  void advance();
  /// Where the mark is, in steps from the left.
  int position() const;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  static constexpr int steps = 60;
  int moves_ = 0;
};

}  // namespace awizo::desktop
