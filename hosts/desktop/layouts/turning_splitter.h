#pragma once

#include <QMap>
#include <QSplitter>

namespace awizo::desktop {

/// Side by side where there is room for all at their least widths, else one below the other. The
/// user's own sizes of either way are there again when it turns.
class TurningSplitter : public QSplitter {
 public:
  TurningSplitter();
  QSize minimumSizeHint() const override;

  /// What the user has dragged them to, or was given; empty where they are as they began.
  QList<int> givenSizes(Qt::Orientation way) const { return given_.value(way); }
  void giveSizes(Qt::Orientation way, const QList<int>& sizes);

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  void turn();
  Qt::Orientation wanted() const;
  QList<int> usualSizes() const;

  QMap<Qt::Orientation, QList<int>> given_;
};

}  // namespace awizo::desktop
