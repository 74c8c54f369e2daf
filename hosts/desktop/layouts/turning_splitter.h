#pragma once

#include <QMap>
#include <QSplitter>
#include <string>

namespace awizo::desktop {

/// Side by side where there is room for all that are shown at their least widths, else one below
/// the other. The user's own sizes of either way are there again when it turns.
class TurningSplitter : public QSplitter {
 public:
  TurningSplitter();
  QSize minimumSizeHint() const override;

  /// What the user has dragged them to, or was given; empty where they are as they began.
  QList<int> givenSizes(Qt::Orientation way) const { return given_.value(way); }
  void giveSizes(Qt::Orientation way, const QList<int>& sizes);

  /// The least width for all that are shown side by side.
  int widthSideBySide() const;
  /// Turns where its width asks for that.
  void turn();

 protected:
  bool event(QEvent* event) override;

 private:
  Qt::Orientation wanted() const;
  QList<int> usualSizes() const;

  QMap<Qt::Orientation, QList<int>> given_;
};

/// The name under which sizes of a splitter's one way are kept.
std::string keptName(const TurningSplitter& splitter, Qt::Orientation way);

}  // namespace awizo::desktop
