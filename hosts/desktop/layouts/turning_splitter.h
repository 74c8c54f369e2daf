#pragma once

#include <QSplitter>

namespace awizo::desktop {

/// Side by side where there is room for all at their least widths, else one below the other. The
/// user's own sizes are kept, by its name, only of those that are side by side.
class TurningSplitter : public QSplitter {
 public:
  explicit TurningSplitter(const QString& name);
  QSize minimumSizeHint() const override;

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  void turn();
  Qt::Orientation wanted() const;

  QString name_;
  QList<int> sizesBeside_;  ///< when it was turned
};

}  // namespace awizo::desktop
