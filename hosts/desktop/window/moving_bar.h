#pragma once

#include <QWidget>

namespace awizo::desktop {

/// Shows that work goes on, however long: a mark that runs along a line and comes back. It moves
/// by advance() alone, so that it stands still when the work does.
class MovingBar : public QWidget {
 public:
  explicit MovingBar(QWidget* parent = nullptr);

  void advance();
  /// Where the mark stands, in steps from the left.
  int position() const;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  static constexpr int steps = 60;
  int moves_ = 0;
};

}  // namespace awizo::desktop
